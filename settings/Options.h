#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "settings/cli/SubCommand.h"

namespace settings {

/// What the command line asks for.
struct Options {
  /// The phone folder; empty for the default one.
  std::filesystem::path root;
  /// The port to listen on; 0 takes a free one.
  std::uint16_t port = 0;
  /// How many pixels the phone's screen has to a point: 1, 2 or 3.
  double screenScale = 3;
  /// What the phone says of itself, its model, version and build; empty leaves it to its files.
  std::string productType;
  std::string iosVersion;
  std::string iosBuild;
  /// What is run on this computer when the phone resprings, when it posts a Darwin notification
  /// (whose name is `$1`) and when it sends a mail (which stands on standard input); empty is
  /// nothing.
  std::string respringCommand;
  std::string notifyCommand;
  std::string mailCommand;
  /// Whether a browser is opened, given that there is a display.
  bool open = true;
  /// What is to be done instead of showing the page; null to show it.
  const cli::SubCommand* subCommand = nullptr;
  /// What was given with it.
  cli::Request request;
};

/// The options, or the code to exit with at once: 0 after `--help`, 2 after a mistake, which has
/// then been described on standard error.
struct ParsedOptions {
  Options options;
  std::optional<int> exitCode;
};

ParsedOptions parseOptions(int argc, const char* const* argv);

}  // namespace settings
