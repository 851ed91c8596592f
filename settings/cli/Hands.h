#pragma once

#include <boost/asio/io_context.hpp>
#include <functional>
#include <optional>
#include <string_view>

#include "desktop/UIKit/AlertBody.h"
#include "settings/Options.h"
#include "settings/QueueTimer.h"
#include "settings/Session.h"

namespace settings::cli {

/// A phone in the hands of somebody at the command line, with the add-on's first page before them.
class Hands {
 public:
  /// Throws `std::runtime_error` with a message for the user.
  explicit Hands(const Options& options);

  desktop::SpringBoard& board() { return session_.phone.springBoard; }
  desktop::NavigationController& pages() { return *board().navigation(); }

  /// Puts away what the first page shows by itself, which is not for these hands to have seen.
  void clearScreen() { pages().dismiss(); }

  /// Taps the row of the page on top that has this action, a selector. Throws `std::runtime_error`
  /// when there is none.
  void tapRow(std::string_view action);

  /// The alert that is shown. Throws `std::runtime_error` when none is.
  const desktop::AlertBody& alert();
  /// Answers it with its Cancel, or with the other answer.
  void answerAlert(bool confirmed);

  /// Says so if the preferences file cannot be read: the pages then show what counts without it.
  void tellOfUnreadable() const;

  /// The person's answer; while they make up their mind, other programs may have the folder.
  bool waitFor(const std::function<bool()>& person);

  /// Does what `touch` does and waits as `wait` does.
  void change(const std::function<void()>& touch);

  /// Waits until all that is to happen later has happened, and the commands that it caused have
  /// ended. Throws `std::runtime_error` when the phone reported that something was not stored, or
  /// does not come back from a restart.
  void wait() {
    change([] {});
  }

 private:
  boost::asio::io_context loop_{1};
  Session session_;
  QueueTimer timer_;
  /// The phone's folder for a command that changes something, from what it reads first to its
  /// change.
  std::optional<desktop::Descriptor> held_;
};

}  // namespace settings::cli
