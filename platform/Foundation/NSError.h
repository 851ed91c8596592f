#pragma once

#include "platform/Object.h"

namespace platform {

/// Why something failed.
class NSError : public Object {};

}  // namespace platform
