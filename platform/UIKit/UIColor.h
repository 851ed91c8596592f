#pragma once

#include "platform/CoreGraphics/CGColor.h"
#include "platform/Object.h"

namespace platform {

/// A colour with opacity.
class UIColor : public Object {
 public:
  /// Components from 0 to 1 in sRGB; alpha 0 is clear, 1 opaque.
  static UIColor colorWithRed(double red, double green, double blue, double alpha);
  /// Opaque white.
  static UIColor whiteColor();
  /// Black with alpha 0.
  static UIColor clearColor();

  /// The same colour for layers.
  platform::CGColor CGColor() const;
};

}  // namespace platform
