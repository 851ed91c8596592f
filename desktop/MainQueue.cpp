#include "desktop/MainQueue.h"

#include "desktop/Phone.h"

namespace desktop {

void MainQueue::after(Clock::duration delay, std::function<void()> work) {
  waiting_.emplace(now() + delay, std::move(work));
  if (added) added();
}

std::optional<MainQueue::Clock::time_point> MainQueue::due() const {
  return waiting_.empty() ? std::nullopt : std::optional(waiting_.begin()->first);
}

void MainQueue::run() {
  while (!waiting_.empty() && waiting_.begin()->first <= now()) {
    const auto next = waiting_.extract(waiting_.begin());
    try {
      next.mapped()();
    } catch (const std::exception& failure) {
      Phone::current().reportLoss(failure.what());
    }
  }
}

}  // namespace desktop
