#pragma once

#include <string>
#include <vector>

#include "bench/support/Contestant.h"

namespace bench {

/// One start of a server, from the call that makes the process to the line that says where it
/// listens. The end of the one before is outside the time.
Trial startOf(std::vector<std::string> command);

}  // namespace bench
