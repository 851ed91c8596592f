#pragma once

#include <boost/asio/io_context.hpp>
#include <map>
#include <string>

#include "settings/CommandQueue.h"

namespace settings {

/// Runs what the user wants done on this computer when something happens on the phone. Nothing
/// waits for a command; one that fails is reported on standard error, and nobody else hears of it.
class Commands {
 public:
  using Input = CommandQueue::Input;

  explicit Commands(boost::asio::io_context& loop) : loop_(loop) {}

  /// Runs `command` by /bin/sh, once those with the same text have ended; an empty one is none.
  /// The loop has work until it has ended.
  void run(const std::string& command, const Input& input) {
    if (!command.empty()) queues_.try_emplace(command, loop_, command).first->second.run(input);
  }

 private:
  boost::asio::io_context& loop_;
  std::map<std::string, CommandQueue> queues_;
};

}  // namespace settings
