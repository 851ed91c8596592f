#pragma once

#include "desktop/Body.h"
#include "desktop/UIKit/Cairo.h"
#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIGraphics.h"

namespace desktop {

/// A context that makes pictures. One whose size has no area, is no number or is too large draws
/// nothing, and its picture is none.
class ContextBody : public Body {
 public:
  /// `size` in points, `pixelsToAPoint` of them wide and high; a part of a pixel becomes a whole
  /// one. It begins transparent, or black when it is opaque.
  ContextBody(const platform::CGSize& size, platform::Opaque opaque, double pixelsToAPoint);

  std::string_view className() const override { return "CGContext"; }

  /// What to draw with, in points; null for a context that draws nothing.
  cairo_t* cairo() const { return cairo_.get(); }

  /// A picture of what was drawn so far.
  platform::UIImage picture() const;

 private:
  double scale_;
  Surface pixels_;
  Context cairo_;
};

/// What draws into the context that is the current one; null when that draws nothing, and without
/// one.
cairo_t* currentContext();

}  // namespace desktop
