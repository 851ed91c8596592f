#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/UIKit/UIGraphics.h"
#include "prefs/Images.h"
#include "tests/desktop/PhoneTest.h"
#include "tests/desktop/Pixels.h"

namespace desktop_tests {
namespace {

using platform::UIColor;
using platform::UIImage;
using quillmere::imageWithTint;

class TintTest : public PhoneTest {
 protected:
  const UIColor orange = UIColor::colorWithRed(0xf6 / 255.0, 0x92 / 255.0, 0x40 / 255.0, 1);
  static constexpr Pixel orangePixel = 0xfff69240;
};

TEST_F(TintTest, MakesAnOpaquePictureOneColor) {
  const UIImage colorful =
      makePicture(9, 6, 3, [](int x, int y) { return (x + y) % 2 == 0 ? red : white; });
  const UIImage tinted = imageWithTint(colorful, orange);
  EXPECT_EQ(pixelsOf(tinted), pixelsOf(makePicture(9, 6, 3, orangePixel)));
  EXPECT_EQ(bodyOf(tinted).size(), platform::CGSizeMake(3, 2));
}

TEST_F(TintTest, IsAtTheScreensScale) {
  for (const int scale : {1, 2, 3}) {
    phone->screenScale = scale;
    const UIImage tinted = imageWithTint(makePicture(30, 20, 1, black), orange);
    EXPECT_EQ(pixelsOf(tinted), pixelsOf(makePicture(30 * scale, 20 * scale, scale, orangePixel)));
    EXPECT_EQ(bodyOf(tinted).size(), platform::CGSizeMake(30, 20));
  }
}

TEST_F(TintTest, LeavesWhatIsTransparentTransparent) {
  const UIImage frame =
      makePicture(9, 9, 3, [](int x, int y) { return x < 3 || y >= 6 ? black : transparent; });
  const Pixels pixels = pixelsOf(imageWithTint(frame, orange));
  for (int y = 0; y < 9; ++y) {
    for (int x = 0; x < 9; ++x) {
      EXPECT_EQ(pixels.at(x, y), x < 3 || y >= 6 ? orangePixel : transparent) << x << ", " << y;
    }
  }
}

TEST_F(TintTest, WearsTheColorAsThinlyAsThePictureIs) {
  // A row of every alpha, whose own colours do not count.
  const UIImage ramp =
      makePicture(256, 1, 3, [](int x, int) { return static_cast<Pixel>(x) << 24; });
  const Pixels pixels = pixelsOf(imageWithTint(ramp, UIColor::whiteColor()));
  for (int x = 0; x < 256; ++x) {
    EXPECT_EQ(pixels.at(x, 0), static_cast<Pixel>(x) * 0x01010101);
  }
}

TEST_F(TintTest, MultipliesTheColorsOwnOpacity) {
  const UIColor halfRed = UIColor::colorWithRed(1, 0, 0, 0.5);
  EXPECT_EQ(pixelsOf(imageWithTint(makePicture(3, 3, 3, white), halfRed)),
            pixelsOf(makePicture(3, 3, 3, 0x80800000)));
  EXPECT_EQ(pixelsOf(imageWithTint(makePicture(3, 3, 3, white), UIColor::clearColor())),
            pixelsOf(makePicture(3, 3, 3, transparent)));
}

TEST_F(TintTest, GivesNoneForNone) {
  EXPECT_FALSE(imageWithTint(UIImage(), orange));
  EXPECT_FALSE(platform::UIGraphicsGetCurrentContext());
}

TEST_F(TintTest, LeavesThePictureAsItWas) {
  const UIImage picture = makePicture(4, 4, 2, red);
  const Pixels before = pixelsOf(picture);
  imageWithTint(picture, orange);
  EXPECT_EQ(pixelsOf(picture), before);
  EXPECT_EQ(bodyOf(picture).mode, platform::UIImageRenderingMode::Automatic);
}

TEST_F(TintTest, SendsItsMessagesInOrder) {
  const UIImage picture = makePicture(6, 3, 3, red);
  phone->journal.start();
  imageWithTint(picture, UIColor::whiteColor());
  EXPECT_THAT(
      phone->journal.lines(),
      testing::ElementsAre(
          "UIImage imageWithRenderingMode:2", "UIImageView initWithImage:<UIImage>",
          "UIImageView setTintColor:UIColor(1, 1, 1, 1)", "UIImageView bounds",
          "UIGraphics beginImageContextWithOptions:{2, 1} opaque:NO scale:0", "UIImageView layer",
          "UIGraphics getCurrentContext", "CALayer renderInContext:<CGContext>",
          "UIGraphics getImageFromCurrentImageContext", "UIGraphics endImageContext"));
}

}  // namespace
}  // namespace desktop_tests
