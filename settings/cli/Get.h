#pragma once

#include "settings/cli/SubCommand.h"

namespace settings::cli {

/// Tells the value of a setting. Changes no setting.
std::string get(Hands& hands, const Request& request);

}  // namespace settings::cli
