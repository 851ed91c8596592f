#include <gtest/gtest.h>
#include <limits>

#include "platform/UIKit/UIGraphics.h"
#include "tests/desktop/PhoneTest.h"
#include "tests/desktop/Pixels.h"

namespace desktop_tests {
namespace {

using namespace platform;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

UIImage drawn(const CGSize& size, double scale, const std::function<void()>& draw,
              Opaque opaque = Opaque::No) {
  UIGraphicsBeginImageContextWithOptions(size, opaque, scale);
  draw();
  const UIImage picture = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return picture;
}

UIImage blank(const CGSize& size, double scale, Opaque opaque = Opaque::No) {
  return drawn(
      size, scale, [] {}, opaque);
}

class ImageContextsTest : public PhoneTest {
 protected:
  const UIImage redPicture = makePicture(2, 2, 1, red);
};

TEST_F(ImageContextsTest, BeginTransparentOrBlack) {
  EXPECT_EQ(pixelsOf(blank({2, 3}, 1)), pixelsOf(makePicture(2, 3, 1, transparent)));
  EXPECT_EQ(pixelsOf(blank({2, 3}, 1, Opaque::Yes)), pixelsOf(makePicture(2, 3, 1, black)));
}

TEST_F(ImageContextsTest, HaveScaleTimesTheSizeInPixels) {
  phone->screenScale = 2;
  const std::pair<double, int> cases[] = {{0, 2}, {1, 1}, {2, 2}, {3, 3}};
  for (const auto& [scale, pixels] : cases) {
    const UIImage picture = blank({10, 20}, scale);
    EXPECT_EQ(pixelsOf(picture).width, 10 * pixels);
    EXPECT_EQ(pixelsOf(picture).height, 20 * pixels);
    EXPECT_EQ(bodyOf(picture).size(), CGSizeMake(10, 20));
  }
}

TEST_F(ImageContextsTest, RoundUpToWholePixels) {
  const Pixels pixels = pixelsOf(blank({10.1, 0.2}, 2));
  EXPECT_EQ(pixels.width, 21);
  EXPECT_EQ(pixels.height, 1);
}

TEST_F(ImageContextsTest, OfNoBearableSizeDrawNothing) {
  for (const double bad : {0.0, -1.0, nan, infinity, -infinity, 40'000.0, 1e300}) {
    EXPECT_FALSE(drawn({bad, 10}, 1, [&] { redPicture.drawInRect({{}, {10, 10}}); })) << bad;
    EXPECT_FALSE(drawn({10, bad}, 1, [&] { redPicture.drawInRect({{}, {10, 10}}); })) << bad;
  }
  for (const double bad : {-1.0, nan, infinity, 1e300}) EXPECT_FALSE(blank({10, 10}, bad)) << bad;
  EXPECT_FALSE(blank({20'000, 20'000}, 1));
}

TEST_F(ImageContextsTest, AreAStack) {
  const UIImage outer = drawn({2, 2}, 1, [&] {
    const CGContext before = UIGraphicsGetCurrentContext();
    const UIImage inner = drawn({2, 2}, 1, [&] {
      EXPECT_NE(UIGraphicsGetCurrentContext(), before);
      redPicture.drawInRect({{}, {1, 1}});
    });
    EXPECT_EQ(UIGraphicsGetCurrentContext(), before);
    EXPECT_EQ(pixelsOf(inner).at(0, 0), red);
    redPicture.drawInRect({{1, 1}, {1, 1}});
  });
  EXPECT_EQ(pixelsOf(outer).values,
            (std::vector<Pixel>{transparent, transparent, transparent, red}));
}

TEST_F(ImageContextsTest, OfNoSizeHideTheOneBelow) {
  const UIImage outer = drawn({2, 2}, 1, [&] {
    blank({0, 0}, 1);
    EXPECT_FALSE(drawn({0, 0}, 1, [&] { redPicture.drawInRect({{}, {2, 2}}); }));
  });
  EXPECT_EQ(pixelsOf(outer), pixelsOf(makePicture(2, 2, 1, transparent)));
}

TEST_F(ImageContextsTest, WithoutOneThereIsNothing) {
  EXPECT_FALSE(UIGraphicsGetCurrentContext());
  EXPECT_FALSE(UIGraphicsGetImageFromCurrentImageContext());
  UIGraphicsEndImageContext();
  redPicture.drawInRect({{}, {2, 2}});
  EXPECT_FALSE(UIGraphicsGetCurrentContext());
}

TEST_F(ImageContextsTest, PicturesDoNotChangeWithWhatIsDrawnLater) {
  UIImage early;
  const UIImage late = drawn({2, 2}, 1, [&] {
    early = UIGraphicsGetImageFromCurrentImageContext();
    redPicture.drawInRect({{}, {2, 2}});
  });
  EXPECT_EQ(pixelsOf(early), pixelsOf(makePicture(2, 2, 1, transparent)));
  EXPECT_EQ(pixelsOf(late), pixelsOf(redPicture));
  EXPECT_NE(bodyOf(early).number, bodyOf(late).number);
}

TEST_F(ImageContextsTest, SurviveWhatCannotBeDrawn) {
  const CGRect odd[] = {
      {{nan, 0}, {2, 2}},
      {{0, infinity}, {2, 2}},
      {{1e300, 0}, {2, 2}},
      {{0, -1e9}, {2, 2}},
      {{0, 0}, {nan, 2}},
      {{0, 0}, {2, infinity}},
      {{0, 0}, {-2, 2}},
      {{0, 0}, {2, 0}},
      {{0, 0}, {1e-300, 2}},
      {{0, 0}, {2, 1e300}},
      {{-infinity, 0}, {infinity, 2}},
  };
  const UIImage picture = drawn({2, 2}, 1, [&] {
    for (const CGRect& rect : odd) redPicture.drawInRect(rect);
    UIImage().drawInRect({{}, {2, 2}});
    makePicture(8000, 1, 1, red).drawInRect({{}, {0.1, 2}});
    makePicture(1, 1, 1, green).drawInRect({{0, 0}, {1, 2}});
  });
  EXPECT_EQ(pixelsOf(picture).values, (std::vector<Pixel>{green, transparent, green, transparent}));
}

TEST_F(ImageContextsTest, DrawTemplatesInTheirOwnColors) {
  const UIImage shape = redPicture.imageWithRenderingMode(UIImageRenderingMode::AlwaysTemplate);
  EXPECT_EQ(bodyOf(shape).mode, UIImageRenderingMode::AlwaysTemplate);
  EXPECT_EQ(bodyOf(redPicture).mode, UIImageRenderingMode::Automatic);
  EXPECT_NE(bodyOf(shape).number, bodyOf(redPicture).number);
  const UIImage picture = drawn({2, 2}, 1, [&] { shape.drawInRect({{}, {2, 2}}); });
  EXPECT_EQ(pixelsOf(picture), pixelsOf(redPicture));
}

}  // namespace
}  // namespace desktop_tests
