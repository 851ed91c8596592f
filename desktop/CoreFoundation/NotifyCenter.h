#pragma once

#include <functional>
#include <string>
#include <vector>

namespace desktop {

/// The stand-in's Darwin notify centre: names only, delivered at once, in the order of observing.
class NotifyCenter {
 public:
  using Observer = std::function<void(const std::string& name)>;

  /// Calls `observer` for every notification from now on.
  void observe(Observer observer) { observers_.push_back(std::move(observer)); }

  /// Tells every observer, before it returns. Observers must not observe meanwhile.
  void post(const std::string& name) const {
    for (const Observer& observer : observers_) observer(name);
  }

 private:
  std::vector<Observer> observers_;
};

}  // namespace desktop
