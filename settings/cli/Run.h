#pragma once

#include "settings/Options.h"

namespace settings::cli {

/// Does what the options' sub-command says, and prints its answer. What the program is to exit
/// with: 0, or 2 after a mistake, which has then been described on standard error. Throws
/// `std::runtime_error` with a message for the user when it could not be done.
int run(const Options& options);

}  // namespace settings::cli
