#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "prefs/Images.h"
#include "tests/desktop/PhoneTest.h"
#include "tests/desktop/Pixels.h"

namespace desktop_tests {
namespace {

constexpr double pi = std::numbers::pi;

Pixel gray(double level) {
  const auto value = static_cast<Pixel>(std::lround(std::clamp(level, 0.0, 1.0) * 255));
  return 0xff000000 | value * 0x010101;
}

/// What pictures are made of: smooth shades, a disc, bars of several widths, a transparent corner,
/// and a texture finer than the small picture can hold.
Pixel scene(int x, int y) {
  if (x + y < 200) return transparent;
  const double u = x / 1024.0;
  const double v = y / 1024.0;
  if (std::hypot(u - 0.7, v - 0.3) < 0.2) return 0xfff69240;
  if (v > 0.75) return (x / (4 + x / 64)) % 2 == 0 ? black : white;
  if (u < 0.3 && v > 0.4) return (x + y) % 2 == 0 ? red : blue;
  return gray(0.5 + 0.3 * std::sin(9 * u) + 0.2 * std::cos(7 * v + u));
}

/// A wave in each direction whose frequency grows from none to half a wave a pixel.
Pixel zonePlate(int x, int y) {
  return gray(0.5 + 0.5 * std::cos(pi / (2 * 1024.0) * (double(x) * x + double(y) * y)));
}

double lanczos3(double x) {
  if (x == 0) return 1;
  if (std::abs(x) >= 3) return 0;
  return 3 * std::sin(pi * x) * std::sin(pi * x / 3) / (pi * pi * x * x);
}

/// One line of numbers, resampled. The outermost ones go on past the ends.
std::vector<double> resample(const std::vector<double>& line, int count) {
  const double step = static_cast<double>(line.size()) / count;
  const int last = static_cast<int>(line.size()) - 1;
  std::vector<double> result;
  for (int index = 0; index < count; ++index) {
    const double centre = (index + 0.5) * step - 0.5;
    double sum = 0;
    double weights = 0;
    for (int place = static_cast<int>(centre - 3 * step); place <= centre + 3 * step; ++place) {
      const double weight = lanczos3((place - centre) / step);
      sum += weight * line[static_cast<std::size_t>(std::clamp(place, 0, last))];
      weights += weight;
    }
    result.push_back(sum / weights);
  }
  return result;
}

using Plane = std::vector<std::vector<double>>;

Plane transposed(const Plane& plane) {
  Plane result(plane[0].size(), std::vector<double>(plane.size()));
  for (std::size_t y = 0; y < plane.size(); ++y) {
    for (std::size_t x = 0; x < plane[y].size(); ++x) result[x][y] = plane[y][x];
  }
  return result;
}

Plane resampled(Plane plane, int side) {
  for (int direction = 0; direction < 2; ++direction) {
    for (std::vector<double>& line : plane) line = resample(line, side);
    plane = transposed(plane);
  }
  return plane;
}

/// The picture made smaller by the textbook: a Lanczos filter of three lobes.
Pixels reference(const Pixels& picture, int side) {
  Pixels result{side, side, std::vector<Pixel>(static_cast<std::size_t>(side * side))};
  for (int number = 0; number < 4; ++number) {
    Plane plane(static_cast<std::size_t>(picture.height));
    for (int y = 0; y < picture.height; ++y) {
      for (int x = 0; x < picture.width; ++x) {
        plane[static_cast<std::size_t>(y)].push_back(channel(picture.at(x, y), number));
      }
    }
    auto target = result.values.begin();
    for (const std::vector<double>& line : resampled(std::move(plane), side)) {
      for (const double level : line) {
        const auto bounded = static_cast<Pixel>(std::lround(std::clamp(level, 0.0, 255.0)));
        *target++ |= bounded << (8 * number);
      }
    }
  }
  return result;
}

class RescaleQualityTest : public PhoneTest {};

TEST_F(RescaleQualityTest, IsThatOfATextbookFilter) {
  const platform::UIImage large = makePicture(1024, 1024, 1, &scene);
  const Pixels small = pixelsOf(quillmere::rescaleImage(large, {120, 120}));
  EXPECT_GE(psnr(small, reference(pixelsOf(large), 360)), 35);
}

TEST_F(RescaleQualityTest, WhatIsTooFineToBeSeenBecomesEvenGray) {
  const platform::UIImage large = makePicture(1024, 1024, 1, &zonePlate);
  const Pixels small = pixelsOf(quillmere::rescaleImage(large, {120, 120}));
  // Beyond this column and row the waves are finer than two pixels of the small picture.
  constexpr int fine = 360 * 360 * 13 / 1024 / 10;
  for (int y = fine; y < 360; ++y) {
    for (int x = fine; x < 360; ++x) {
      ASSERT_NEAR(channel(small.at(x, y), 0), 127.5, 8) << x << ", " << y;
    }
  }
}

}  // namespace
}  // namespace desktop_tests
