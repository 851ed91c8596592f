#pragma once

#include <string>

#include "settings/cli/SubCommand.h"
#include "settings/cli/Values.h"

namespace settings::cli {

/// Opens the list of animations, and tells the names of the enabled ones, in the user's order.
Description describeLotties(Hands& hands);

/// @name What the list of animations is for, by what a finger would do to its rows. An animation
/// whose name stands there twice is the first of that name. What changes the list tells in JSON
/// how it stands then, as `listLotties` does.
/// @{
std::string listLotties(Hands& hands, const Request& request);
std::string enableLottie(Hands& hands, const Request& request);
std::string disableLottie(Hands& hands, const Request& request);
std::string moveLottie(Hands& hands, const Request& request);
/// @}

}  // namespace settings::cli
