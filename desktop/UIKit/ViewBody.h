#pragma once

#include <string_view>
#include <vector>

#include "desktop/Body.h"
#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIView.h"

struct _cairo;

namespace desktop {

/// An edge of a view, as constraints name it.
enum class Edge { Top, Leading, Trailing, Bottom };
std::string_view nameOf(Edge edge);

/// What a view is made of. Each kind of view derives from it.
class ViewBody : public Body {
 public:
  ViewBody();

  std::string_view className() const override { return "UIView"; }

  /// Draws what this kind of view shows of its own, into a context whose unit is the point and
  /// whose origin is the view's corner.
  virtual void drawContent(_cairo&) const {}

  /// Never used twice, so that who draws the screen can name the view.
  const unsigned number;

  platform::CGRect frame;
  double alpha = 1;
  /// The time that alpha takes to get there on the screen, in seconds.
  double fade = 0;
  bool clipsToBounds = false;
  platform::UIViewContentMode contentMode = platform::UIViewContentMode::ScaleToFill;
  platform::UIColor background;
  platform::UIColor tint;

  double borderWidth = 0;
  platform::CGColor borderColor;
  double cornerRadius = 0;

  /// The lowest one first.
  std::vector<platform::UIView> subviews;
};

/// The body of a view; null for none and for what is no view.
inline ViewBody* viewOf(const platform::Object& view) { return bodyAs<ViewBody>(view); }

}  // namespace desktop
