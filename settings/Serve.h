#pragma once

#include "settings/Options.h"

namespace settings {

/// Shows the phone in a browser until the program is told to end (SIGINT, SIGTERM). Throws
/// `std::runtime_error` with a message for the user.
void serve(const Options& options);

}  // namespace settings
