#pragma once

#include "platform/Object.h"

namespace platform {

class UIFont : public Object {
 public:
  /// `size` in points.
  static UIFont boldSystemFontOfSize(double size);
};

}  // namespace platform
