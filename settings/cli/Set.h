#pragma once

#include "settings/cli/SubCommand.h"

namespace settings::cli {

/// Changes a setting, by what a finger would do to its row.
std::string set(Hands& hands, const Request& request);

}  // namespace settings::cli
