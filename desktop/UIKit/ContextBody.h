#pragma once

#include <functional>
#include <vector>

#include "desktop/Body.h"
#include "desktop/UIKit/Cairo.h"
#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIGraphics.h"

namespace desktop {

/// A context that makes pictures. It keeps what is drawn, and draws it for those pictures that are
/// looked at. One whose size has no area, is no number or is too large draws nothing, and its
/// picture is none.
class ContextBody : public Body {
 public:
  /// Draws into a context whose unit is the point.
  using Drawing = std::function<void(cairo_t&)>;

  /// `size` in points, `pixelsToAPoint` of them wide and high; a part of a pixel becomes a whole
  /// one. It begins transparent, or black when it is opaque.
  ContextBody(const platform::CGSize& size, platform::Opaque opaque, double pixelsToAPoint);

  std::string_view className() const override { return "CGContext"; }

  /// Adds something that will look the same whenever it is drawn.
  void draw(Drawing drawing);

  /// Draws at once what may look otherwise later.
  void drawNow(const Drawing& drawing);

  /// A picture of what was drawn so far.
  platform::UIImage picture() const;

 private:
  /// What pictures are made of.
  struct Sheet {
    int width = 0;
    int height = 0;
    double scale = 1;
    std::vector<Drawing> drawings;

    bool isEmpty() const { return width == 0; }
    /// Null when memory does not suffice.
    Surface drawn() const;
  };

  Sheet sheet_;
};

/// What draws into the context that is the current one; null without one.
ContextBody* currentContext();

}  // namespace desktop
