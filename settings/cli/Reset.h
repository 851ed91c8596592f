#pragma once

#include "settings/cli/SubCommand.h"

namespace settings::cli {

/// Resets all settings, once that is confirmed.
std::string reset(Hands& hands, const Request& request);

}  // namespace settings::cli
