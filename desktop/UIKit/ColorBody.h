#pragma once

#include <string>

#include "desktop/Body.h"
#include "platform/UIKit/UIColor.h"

namespace desktop {

/// Components from 0 to 1.
class ColorBody : public Body {
 public:
  ColorBody(double r, double g, double b, double a) : red(r), green(g), blue(b), alpha(a) {}

  std::string_view className() const override { return "UIColor"; }
  std::string description() const override;
  bool isEqual(const Body& other) const override;

  const double red;
  const double green;
  const double blue;
  const double alpha;
};

/// The colour in the form of the web, "#rrggbbaa"; empty for none.
std::string webColor(const platform::Object& color);

}  // namespace desktop
