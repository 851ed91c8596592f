#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/UIKit/UIGraphics.h"
#include "prefs/Images.h"
#include "tests/desktop/PhoneTest.h"
#include "tests/desktop/Pixels.h"

namespace desktop_tests {
namespace {

using platform::UIImage;
using quillmere::rescaleImage;

/// A red, a green, a blue and a white quarter of 200 by 100 pixels.
Pixel quarters(int x, int y) { return y < 50 ? (x < 100 ? red : green) : (x < 100 ? blue : white); }

class RescaleTest : public PhoneTest {
 protected:
  const UIImage wide = makePicture(200, 100, 1, &quarters);
};

TEST_F(RescaleTest, FillsTheSizeAtTheScreensScale) {
  for (const int scale : {1, 2, 3}) {
    phone->screenScale = scale;
    const UIImage square = rescaleImage(wide, {120, 120});
    const Pixels pixels = pixelsOf(square);
    const int side = 120 * scale;
    ASSERT_EQ(pixels.width, side);
    ASSERT_EQ(pixels.height, side);
    EXPECT_EQ(bodyOf(square).size(), platform::CGSizeMake(120, 120));
    // Distorted: each quarter of the wide picture became a square, up to its edge.
    const int near = side / 2 - 3;
    const int far = side / 2 + 3;
    for (const int first : {0, near}) {
      EXPECT_EQ(pixels.at(first, first), red) << scale;
      EXPECT_EQ(pixels.at(side - 1 - first, first), green) << scale;
      EXPECT_EQ(pixels.at(first, side - 1 - first), blue) << scale;
      EXPECT_EQ(pixels.at(side - 1 - first, side - 1 - first), white) << scale;
    }
    EXPECT_EQ(pixels.at(far, 0), green) << scale;
  }
}

TEST_F(RescaleTest, GivesABlankPictureForNone) {
  EXPECT_EQ(pixelsOf(rescaleImage(UIImage(), {120, 120})),
            pixelsOf(makePicture(360, 360, 3, transparent)));
}

TEST_F(RescaleTest, GivesNoneForASizeWithoutArea) {
  for (const platform::CGSize size : {platform::CGSize{0, 120}, {120, -1}, {1e9, 1e9}}) {
    EXPECT_FALSE(rescaleImage(wide, size));
    EXPECT_FALSE(platform::UIGraphicsGetCurrentContext());
  }
}

TEST_F(RescaleTest, LeavesThePictureAsItWas) {
  const Pixels before = pixelsOf(wide);
  const UIImage rescaled = rescaleImage(wide, {10, 10});
  EXPECT_FALSE(rescaled == wide);
  EXPECT_EQ(pixelsOf(wide), before);
  EXPECT_EQ(bodyOf(wide).scale, 1);
}

TEST_F(RescaleTest, KeepsAnOpaquePictureOpaqueUpToItsEdges) {
  for (const double side : {7.0, 33.0, 120.0, 333.0}) {
    const UIImage rescaled = rescaleImage(makePicture(200, 100, 1, red), {side, side});
    const int pixels = static_cast<int>(side * 3);
    EXPECT_EQ(pixelsOf(rescaled), pixelsOf(makePicture(pixels, pixels, 3, red))) << side;
  }
}

Pixel circle(int x, int y) {
  const int dx = 2 * x - 1023;
  const int dy = 2 * y - 1023;
  return dx * dx + dy * dy < 900 * 900 ? white : transparent;
}

TEST_F(RescaleTest, HasNoDarkFringeWhereThePictureEnds) {
  const Pixels pixels = pixelsOf(rescaleImage(makePicture(1024, 1024, 1, &circle), {120, 120}));
  int halfTransparent = 0;
  for (const Pixel pixel : pixels.values) {
    const int alpha = channel(pixel, 3);
    if (alpha > 0 && alpha < 255) ++halfTransparent;
    for (const int number : {0, 1, 2}) ASSERT_EQ(channel(pixel, number), alpha);
  }
  EXPECT_GT(halfTransparent, 300);
  EXPECT_EQ(pixels.at(0, 0), transparent);
  EXPECT_EQ(pixels.at(180, 180), white);
}

/// Opaque red and black stripes with gaps: filters overshoot differently in red and alpha.
Pixel stripes(int x, int y) {
  constexpr Pixel colors[] = {red, black, transparent, white};
  return colors[(x / 5 + y / 7) % 4];
}

TEST_F(RescaleTest, NeverMakesAColorStrongerThanItsAlpha) {
  for (const double side : {40.0, 120.0, 500.0}) {
    for (const Pixel pixel :
         pixelsOf(rescaleImage(makePicture(300, 300, 1, &stripes), {side, side})).values) {
      for (const int number : {0, 1, 2}) ASSERT_LE(channel(pixel, number), channel(pixel, 3));
    }
  }
}

TEST_F(RescaleTest, SendsFourMessagesInOrder) {
  phone->journal.start();
  rescaleImage(wide, {120, 60.5});
  rescaleImage(UIImage(), {2, 1});
  EXPECT_THAT(phone->journal.lines(),
              testing::ElementsAre(
                  "UIGraphics beginImageContextWithOptions:{120, 60.5} opaque:NO scale:0",
                  "UIImage drawInRect:{{0, 0}, {120, 60.5}}",
                  "UIGraphics getImageFromCurrentImageContext", "UIGraphics endImageContext",
                  "UIGraphics beginImageContextWithOptions:{2, 1} opaque:NO scale:0",
                  "UIGraphics getImageFromCurrentImageContext", "UIGraphics endImageContext"));
}

}  // namespace
}  // namespace desktop_tests
