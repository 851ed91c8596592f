#pragma once

#include <functional>
#include <memory>
#include <string>

#include "desktop/MainQueue.h"
#include "desktop/SettingsApplication.h"

namespace desktop {

/// The stand-in for the process that owns the phone's screen: it opens the Settings application,
/// and can be restarted.
class SpringBoard {
 public:
  /// What the screen shows.
  enum class Phase {
    Running,  ///< The Settings application.
    Dark,     ///< Nothing, while the process starts anew.
    Locked,   ///< The lock screen, for a moment.
  };

  /// How long the two phases of a restart last.
  static constexpr std::chrono::milliseconds darkTime{1200};
  static constexpr std::chrono::milliseconds lockedTime{800};

  explicit SpringBoard(MainQueue& queue) : queue_(queue) {}

  /// Opens the Settings application at an address of the form "prefs:root=LABEL". Throws
  /// `std::runtime_error` when the address has another form, and as `SettingsApplication` does.
  void open(const std::string& address);

  /// Ends the Settings application and opens it anew at `address`, after the two phases. While a
  /// restart is under way another one is ignored.
  void respringAndReturnTo(const std::string& address);

  Phase phase() const { return phase_; }

  /// Whether the last attempt to open an address after a restart failed. It is reported once, and
  /// tried again every `retryTime`, with the lock screen to be seen.
  bool isStuck() const { return isStuck_; }
  static constexpr std::chrono::seconds retryTime{2};

  /// The pages on the screen; null unless the phase is `Running`.
  NavigationController* navigation();

  /// Ends the application without another one.
  void shutDown() { application_.reset(); }

  /// Told when a restart begins.
  std::function<void()> onRespring;

 private:
  /// Ends the application, and lets the two phases follow, counted from `began`.
  void restart(const std::string& address, MainQueue::Clock::time_point began);

  void reopen(const std::string& address);

  MainQueue& queue_;
  Phase phase_ = Phase::Dark;
  bool isStuck_ = false;
  std::unique_ptr<SettingsApplication> application_;
};

}  // namespace desktop
