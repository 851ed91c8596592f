#include "desktop/SpringBoard.h"

#include <stdexcept>
#include <utility>

#include "desktop/Phone.h"

namespace desktop {

void SpringBoard::open(const std::string& address) {
  constexpr std::string_view scheme = "prefs:root=";
  if (!address.starts_with(scheme)) throw std::runtime_error("nothing opens " + address);
  application_ = std::make_unique<SettingsApplication>(address.substr(scheme.size()));
  phase_ = Phase::Running;
}

void SpringBoard::respringAndReturnTo(const std::string& address) {
  if (phase_ != Phase::Running) return;
  phase_ = Phase::Dark;
  if (onRespring) onRespring();
  // The application ends in a turn of its own, since it may be the one that is asking.
  queue_.clear();
  queue_.after({}, [this, address, began = queue_.now()] { restart(address, began); });
}

void SpringBoard::restart(const std::string& address, MainQueue::Clock::time_point began) {
  application_.reset();
  queue_.clear();  // What the application still meant to do ends with it.
  const auto passed = queue_.now() - began;
  queue_.after(darkTime - passed, [this] { phase_ = Phase::Locked; });
  queue_.after(darkTime + lockedTime - passed, [this, address] { reopen(address); });
}

void SpringBoard::reopen(const std::string& address) {
  if (phase_ == Phase::Running) return;
  try {
    open(address);
    isStuck_ = false;
  } catch (const std::exception& failure) {
    if (!std::exchange(isStuck_, true)) {
      Phone::current().report(address + " does not open, and is tried again: " + failure.what());
    }
    queue_.after(retryTime, [this, address] { reopen(address); });
  }
}

NavigationController* SpringBoard::navigation() {
  return phase_ == Phase::Running ? &application_->navigation : nullptr;
}

}  // namespace desktop
