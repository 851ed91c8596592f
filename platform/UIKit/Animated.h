#pragma once

namespace platform {

/// Whether the user sees a change as a movement.
enum class Animated : bool { No = false, Yes = true };

}  // namespace platform
