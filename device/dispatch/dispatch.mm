#include "platform/dispatch/dispatch.h"

#include <dispatch/dispatch.h>

namespace platform {

void dispatch_after(std::chrono::nanoseconds delay, std::function<void()> block) {
  ::dispatch_after(::dispatch_time(DISPATCH_TIME_NOW, delay.count()), dispatch_get_main_queue(), ^{
    if (block) block();
  });
}

}  // namespace platform
