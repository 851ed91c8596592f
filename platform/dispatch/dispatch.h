#pragma once

#include <chrono>
#include <functional>

namespace platform {

/// `dispatch_after` on the main queue: runs `block` once `delay` has passed.
void dispatch_after(std::chrono::nanoseconds delay, std::function<void()> block);

}  // namespace platform
