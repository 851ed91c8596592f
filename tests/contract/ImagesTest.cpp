#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/UIKit/UIImageView.h"
#include "prefs/Appearance.h"
#include "prefs/Images.h"
#include "tests/support/Driver.h"

namespace {

using namespace platform;
using quillmere::imageWithTint;
using quillmere::rescaleImage;
using testing::ElementsAre;

CGSize sizeOf(const UIImage& picture) { return UIImageView::initWithImage(picture).bounds().size; }

class Images : public testing::Test {
 protected:
  support::Driver phone;
  /// A picture of 200 by 100 points.
  const UIImage wide = rescaleImage(UIImage(), {200, 100});
};

TEST_F(Images, RescaledHaveTheSizeAskedFor) {
  EXPECT_EQ(sizeOf(wide), CGSizeMake(200, 100));
  EXPECT_EQ(sizeOf(rescaleImage(wide, {120, 120})), CGSizeMake(120, 120));
  EXPECT_EQ(sizeOf(wide), CGSizeMake(200, 100));
}

TEST_F(Images, TintedHaveTheSizeOfThePicture) {
  EXPECT_EQ(sizeOf(imageWithTint(wide, quillmere::accentColor())), CGSizeMake(200, 100));
  EXPECT_EQ(sizeOf(imageWithTint(UIImage(), quillmere::accentColor())), CGSize());
}

TEST_F(Images, AreRescaledInOneDrawing) {
  phone.forget();
  rescaleImage(wide, {120, 120});
  EXPECT_THAT(
      phone.journal(),
      ElementsAre("UIGraphics beginImageContextWithOptions:{120, 120} opaque:NO scale:0",
                  "UIImage drawInRect:{{0, 0}, {120, 120}}",
                  "UIGraphics getImageFromCurrentImageContext", "UIGraphics endImageContext"));
}

TEST_F(Images, AreTintedByAViewsLayer) {
  const UIColor white = UIColor::whiteColor();
  phone.forget();
  imageWithTint(wide, white);
  EXPECT_THAT(
      phone.journal(),
      ElementsAre("UIImage imageWithRenderingMode:2", "UIImageView initWithImage:<UIImage>",
                  "UIImageView setTintColor:UIColor(1, 1, 1, 1)", "UIImageView bounds",
                  "UIGraphics beginImageContextWithOptions:{200, 100} opaque:NO scale:0",
                  "UIImageView layer", "UIGraphics getCurrentContext",
                  "CALayer renderInContext:<CGContext>",
                  "UIGraphics getImageFromCurrentImageContext", "UIGraphics endImageContext"));
}

TEST_F(Images, OfNoneAreAskedForAllTheSame) {
  phone.forget();
  imageWithTint(UIImage(), UIColor::whiteColor());
  EXPECT_THAT(
      phone.journal(),
      ElementsAre("UIImageView initWithImage:nil", "UIImageView setTintColor:UIColor(1, 1, 1, 1)",
                  "UIImageView bounds",
                  "UIGraphics beginImageContextWithOptions:{0, 0} opaque:NO scale:0",
                  "UIImageView layer", "UIGraphics getCurrentContext",
                  "CALayer renderInContext:<CGContext>",
                  "UIGraphics getImageFromCurrentImageContext", "UIGraphics endImageContext"));
}

}  // namespace
