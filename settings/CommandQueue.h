#pragma once

#include <boost/asio/io_context.hpp>
#include <boost/asio/posix/stream_descriptor.hpp>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "desktop/Process.h"

namespace settings {

/// The runs of one command of the user's: one at a time, in the order in which they were asked for,
/// so that however slow it is, it takes no more than one process and one descriptor. A run that
/// fails is reported on standard error.
class CommandQueue {
 public:
  /// How many runs may wait for the one before them.
  static constexpr std::size_t mostWaiting = 64;

  /// What a run gets besides the command's text.
  struct Input {
    /// Its `$1`, `$2` and so on.
    std::vector<std::string> arguments;
    /// What stands on its standard input.
    std::string text;
  };

  /// `command` is for /bin/sh.
  CommandQueue(boost::asio::io_context& loop, std::string command);
  CommandQueue(const CommandQueue&) = delete;
  CommandQueue& operator=(const CommandQueue&) = delete;
  /// Reports how many runs wait still, which are dropped; the current one is left to itself.
  ~CommandQueue();

  /// Runs it once more, now or once those before have ended; a run beyond `mostWaiting` is dropped,
  /// and that is reported. The loop has work until all have ended.
  void run(const Input& input);

 private:
  /// A run that has not been seen to end. The watch borrows the process's descriptor.
  struct Current {
    Current(boost::asio::io_context& loop, desktop::Process started);
    ~Current() { ended.release(); }

    desktop::Process process;
    boost::asio::posix::stream_descriptor ended;
  };

  void start(const Input& input);
  void startNext();
  void finish();
  void complain(const std::string& reason) const;

  boost::asio::io_context& loop_;
  const std::string command_;
  std::deque<Input> waiting_;
  std::optional<Current> current_;
};

}  // namespace settings
