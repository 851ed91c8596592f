#pragma once

#include <string>
#include <vector>

namespace program_tests {

/// @name What of a request is alone enough for it to be refused, with the places to fill in of
/// RunningProgram::filled.
/// @{
std::vector<std::string> hostileFirstLines();
/// Fields that are none, or too much; each with its line end.
std::vector<std::string> hostileFields();
/// What is no request of this protocol at all, or ends its lines another way.
std::vector<std::string> noRequests();
/// @}

}  // namespace program_tests
