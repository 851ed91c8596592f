#pragma once

#include <boost/asio/io_context.hpp>
#include <string>
#include <vector>

namespace settings {

/// Runs what the user wants done on this computer when something happens on the phone. Nothing
/// waits for a command; one that fails is reported on standard error, and nobody else hears of it.
class Commands {
 public:
  explicit Commands(boost::asio::io_context& loop) : loop_(loop) {}

  /// What a command gets besides its text.
  struct Input {
    /// Its `$1`, `$2` and so on.
    std::vector<std::string> arguments;
    /// What stands on its standard input.
    std::string text;
  };

  /// Runs `command` by /bin/sh; an empty one is none. The loop has work until it has ended.
  void run(const std::string& command, const Input& input);

 private:
  boost::asio::io_context& loop_;
};

}  // namespace settings
