#pragma once

#include "settings/cli/SubCommand.h"

namespace settings::cli {

/// Shows every setting that the pages offer. Changes none of them.
std::string list(Hands& hands, const Request& request);

}  // namespace settings::cli
