#include "platform/dispatch/dispatch.h"

#include "desktop/Message.h"

namespace platform {

void dispatch_after(std::chrono::nanoseconds delay, std::function<void()> block) {
  desktop::sendClass("dispatch", "after:", {static_cast<double>(delay.count())},
                     [&] { desktop::Phone::current().mainQueue.after(delay, std::move(block)); });
}

}  // namespace platform
