#pragma once

#include "platform/Foundation/NSString.h"

namespace platform {

/// How a library is loaded; the number is the phone's (other systems number it otherwise).
enum class DlopenMode : int { Global = 8 };

/// Loads the library at `path`, if there is one.
void dlopen(const NSString& path, DlopenMode mode);

}  // namespace platform
