#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace settings {

/// What the command line asks for.
struct Options {
  /// The phone folder; empty for the default one.
  std::filesystem::path root;
  /// The port to listen on; 0 takes a free one.
  std::uint16_t port = 0;
  /// Whether a browser is opened, given that there is a display.
  bool open = true;
};

/// The options, or the code to exit with at once: 0 after `--help`, 2 after a mistake, which has
/// then been described on standard error.
struct ParsedOptions {
  Options options;
  std::optional<int> exitCode;
};

ParsedOptions parseOptions(int argc, const char* const* argv);

}  // namespace settings
