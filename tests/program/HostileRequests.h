#pragma once

#include <string>
#include <vector>

namespace program_tests {

/// Requests of which nothing may come. Each has {HOST}, {ORIGIN}, {COOKIE} and {TOKEN} where
/// RunningProgram fills in what is right, so that its one fault is all that is wrong with it.
///
/// `invitation` is the printed address without its origin.
std::vector<std::string> hostileRequests(const std::string& invitation);

/// The requests that those are made from, with no fault: each gets a file of the page.
std::vector<std::string> faultlessRequests();

}  // namespace program_tests
