#pragma once

#include "platform/Object.h"

namespace platform {

/// Bytes.
class NSData : public Object {};

}  // namespace platform
