#pragma once

namespace platform {

/// In points.
struct CGPoint {
  double x = 0;
  double y = 0;
  bool operator==(const CGPoint&) const = default;
};

/// In points.
struct CGSize {
  double width = 0;
  double height = 0;
  bool operator==(const CGSize&) const = default;
};

/// In points; `origin` is the corner at the top and leading side.
struct CGRect {
  CGPoint origin;
  CGSize size;
  bool operator==(const CGRect&) const = default;
};

constexpr CGSize CGSizeMake(double width, double height) { return {width, height}; }

constexpr CGRect CGRectMake(double x, double y, double width, double height) {
  return {{x, y}, {width, height}};
}

/// The rectangle with the same centre whose sides lie `dx` and `dy` further in; further out when
/// they are negative.
constexpr CGRect CGRectInset(const CGRect& rect, double dx, double dy) {
  return CGRectMake(rect.origin.x + dx, rect.origin.y + dy, rect.size.width - 2 * dx,
                    rect.size.height - 2 * dy);
}

}  // namespace platform
