#pragma once

#include "platform/CoreGraphics/CGColor.h"
#include "platform/CoreGraphics/CGContext.h"
#include "platform/Object.h"

namespace platform {

/// What a view is drawn by.
class CALayer : public Object {
 public:
  /// In points, inside the layer's edge.
  void setBorderWidth(double width);
  void setBorderColor(const CGColor& color);
  /// In points.
  void setCornerRadius(double radius);

  /// Draws the layer and those below it into the context.
  void renderInContext(const CGContext& context) const;
};

}  // namespace platform
