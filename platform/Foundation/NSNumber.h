#pragma once

#include "platform/Object.h"

namespace platform {

/// A number or a boolean; which of the two it is, and its width, is kept when it is stored.
class NSNumber : public Object {
 public:
  static NSNumber numberWithBool(bool value);
  static NSNumber numberWithInt(int value);
};

}  // namespace platform
