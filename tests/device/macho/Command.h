#pragma once

#include <string>
#include <vector>

namespace phone_tests {

/// What the command writes to standard output; its standard error is the test's. Throws
/// std::runtime_error unless it ends well. The first word is a program's path or its name.
std::string output(const std::vector<std::string>& command);

/// The text's lines, without their ends.
std::vector<std::string> linesOf(const std::string& text);

/// What stands between white space.
std::vector<std::string> wordsOf(const std::string& line);

}  // namespace phone_tests
