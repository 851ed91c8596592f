#pragma once

#include <boost/asio/io_context.hpp>
#include <chrono>
#include <stdexcept>

#include "desktop/Phone.h"
#include "settings/Commands.h"
#include "settings/Options.h"

namespace settings {

/// This program cannot have the phone's folder for itself, mostly because another one has had it
/// for too long. `what()` says so to the user.
class Busy : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A phone, switched on as the command line says, with the Settings application at the add-on's
/// first page.
class Session {
 public:
  /// Throws `std::runtime_error` with a message for the user. What only reads waits for nobody: a
  /// program that is busy with the folder has set it up.
  Session(const Options& options, boost::asio::io_context& loop);

  /// The phone's folder for this program alone, as long as the answer lives: while one touch,
  /// command or put-off piece of work is handled, so that two programs on one folder never lose
  /// each other's changes. Throws `Busy` when another program keeps it.
  desktop::Descriptor alone() const { return alone(patience); }

  /// Lets the main queue do what is due, alone. What another program keeps it from is reported
  /// once, and due still.
  void runQueue();

  desktop::Phone phone;

 private:
  /// A change takes milliseconds; a program that is stopped in the middle of one must not stop
  /// others.
  static constexpr std::chrono::milliseconds patience{900};

  desktop::Descriptor alone(std::chrono::milliseconds wait) const;
  void runCommands(const Options& options);

  Commands commands_;
  bool isWaiting_ = false;
};

}  // namespace settings
