#pragma once

#include <span>
#include <string>

namespace CLI {
class App;
class ParseError;
}  // namespace CLI

namespace settings {

/// What is wrong with a command line, in words for whoever wrote it.
/// @param app the parser that threw `error`
/// @param options the names of all options, "--root", of which the parser may know a part
std::string mistakeIn(const CLI::App& app, const CLI::ParseError& error,
                      std::span<const std::string> options);

}  // namespace settings
