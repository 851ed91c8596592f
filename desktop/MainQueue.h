#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <optional>

namespace desktop {

/// The main queue: what is to happen later. It runs nothing by itself; whoever owns the event loop
/// lets it.
class MainQueue {
 public:
  using Clock = std::chrono::steady_clock;

  /// Runs `work` once `delay` has passed, after what was due before it.
  void after(Clock::duration delay, std::function<void()> work);

  /// When the next work is due; none when nothing waits.
  std::optional<Clock::time_point> due() const;

  /// Runs all that is due by now, in order, and what comes due meanwhile. Work that throws is
  /// reported, and the rest runs all the same.
  void run();

  /// Forgets what waits.
  void clear() { waiting_.clear(); }

  /// Told whenever something was added.
  std::function<void()> added;

  /// What time it is; tests put a clock of their own here.
  std::function<Clock::time_point()> now = &Clock::now;

 private:
  std::multimap<Clock::time_point, std::function<void()>> waiting_;
};

}  // namespace desktop
