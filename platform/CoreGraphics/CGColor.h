#pragma once

#include "platform/Object.h"

namespace platform {

/// A colour as Core Graphics and layers take it.
class CGColor : public Object {};

}  // namespace platform
