#include "platform/UIKit/UIColor.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "desktop/Journal.h"
#include "desktop/UIKit/ColorBody.h"

namespace desktop {

std::string ColorBody::description() const {
  return "UIColor(" + Argument(red).text() + ", " + Argument(green).text() + ", " +
         Argument(blue).text() + ", " + Argument(alpha).text() + ")";
}

bool ColorBody::isEqual(const Body& other) const {
  const auto* that = dynamic_cast<const ColorBody*>(&other);
  return that && that->red == red && that->green == green && that->blue == blue &&
         that->alpha == alpha;
}

std::string webColor(const platform::Object& color) {
  const auto* body = bodyAs<ColorBody>(color);
  if (!body) return "";
  std::array<char, sizeof "#rrggbbaa"> text;
  const auto byte = [](double component) { return static_cast<int>(std::lround(component * 255)); };
  std::snprintf(text.data(), text.size(), "#%02x%02x%02x%02x", byte(body->red) & 0xff,
                byte(body->green) & 0xff, byte(body->blue) & 0xff, byte(body->alpha) & 0xff);
  return text.data();
}

}  // namespace desktop

namespace platform {

using desktop::ColorBody;

UIColor UIColor::colorWithRed(double red, double green, double blue, double alpha) {
  return desktop::make<UIColor, ColorBody>(red, green, blue, alpha);
}

UIColor UIColor::whiteColor() { return colorWithRed(1, 1, 1, 1); }

UIColor UIColor::clearColor() { return colorWithRed(0, 0, 0, 0); }

platform::CGColor UIColor::CGColor() const { return as<platform::CGColor>(); }

}  // namespace platform
