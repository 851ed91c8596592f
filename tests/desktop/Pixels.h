#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "desktop/CoreGraphics/Drawing.h"
#include "desktop/UIKit/ImageBody.h"

namespace desktop_tests {

/// Premultiplied ARGB, as in 0xffff0000 for opaque red.
using Pixel = std::uint32_t;

inline constexpr Pixel transparent = 0;
inline constexpr Pixel black = 0xff000000;
inline constexpr Pixel white = 0xffffffff;
inline constexpr Pixel red = 0xffff0000;
inline constexpr Pixel green = 0xff00ff00;
inline constexpr Pixel blue = 0xff0000ff;

/// The pixels of a picture, row by row.
struct Pixels {
  int width = 0;
  int height = 0;
  std::vector<Pixel> values;

  Pixel at(int x, int y) const { return values[static_cast<std::size_t>(y * width + x)]; }
  bool operator==(const Pixels&) const = default;
};

/// A picture of that many pixels, `scale` of them to a point.
platform::UIImage makePicture(int width, int height, double scale,
                              const std::function<Pixel(int x, int y)>& pixel);

/// A picture of one colour.
platform::UIImage makePicture(int width, int height, double scale, Pixel color);

/// The surface's pixels; none for null.
Pixels pixelsOf(cairo_surface_t* surface);

/// The picture's pixels, without any for none.
Pixels pixelsOf(const platform::UIImage& picture);

/// The body of a picture that is one.
const desktop::ImageBody& bodyOf(const platform::UIImage& picture);

/// One of a pixel's four numbers: 3 is alpha, 2 red, 1 green, 0 blue.
inline int channel(Pixel pixel, int number) {
  return static_cast<int>(pixel >> (8 * number) & 0xff);
}

/// The peak signal-to-noise ratio in decibels, over all four channels; infinite when both are
/// equal.
double psnr(const Pixels& one, const Pixels& other);

}  // namespace desktop_tests
