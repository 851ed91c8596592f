#pragma once

#include "platform/Object.h"

namespace platform {

/// Something to draw into.
class CGContext : public Object {};

}  // namespace platform
