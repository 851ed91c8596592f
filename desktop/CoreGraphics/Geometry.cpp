#include "desktop/CoreGraphics/Geometry.h"

#include "desktop/Journal.h"

namespace desktop {

namespace {

std::string pair(double one, double other) {
  return '{' + Argument(one).text() + ", " + Argument(other).text() + '}';
}

}  // namespace

std::string text(const platform::CGSize& size) { return pair(size.width, size.height); }

std::string text(const platform::CGRect& rect) {
  return '{' + pair(rect.origin.x, rect.origin.y) + ", " + text(rect.size) + '}';
}

}  // namespace desktop
