#include <gtest/gtest.h>

#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UIImageView.h"
#include "tests/desktop/PhoneTest.h"
#include "tests/desktop/Pixels.h"

namespace desktop_tests {
namespace {

using namespace platform;

Pixels rendered(const UIView& view, double scale = 1) {
  UIGraphicsBeginImageContextWithOptions(view.bounds().size, Opaque::No, scale);
  view.layer().renderInContext(UIGraphicsGetCurrentContext());
  const UIImage picture = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return pixelsOf(picture);
}

UIColor opaque(double r, double g, double b) { return UIColor::colorWithRed(r, g, b, 1); }

UIView box(const CGRect& frame, const UIColor& color) {
  UIView view = UIView::init();
  view.setFrame(frame);
  view.setBackgroundColor(color);
  return view;
}

class ImageViewsTest : public PhoneTest {
 protected:
  /// A view of 40 by 20 points with a red and green picture of 10 by 10.
  UIImageView view(UIViewContentMode mode) {
    UIImageView made = UIImageView::initWithFrame({{}, {40, 20}});
    made.setContentMode(mode);
    made.setImage(makePicture(10, 10, 1, [](int x, int) { return x < 5 ? red : green; }));
    return made;
  }
};

TEST_F(ImageViewsTest, FillWithThePicture) {
  const Pixels pixels = rendered(view(UIViewContentMode::ScaleToFill));
  EXPECT_EQ(pixels.at(0, 0), red);
  EXPECT_EQ(pixels.at(39, 19), green);
}

TEST_F(ImageViewsTest, FitThePictureInTheMiddle) {
  const Pixels pixels = rendered(view(UIViewContentMode::ScaleAspectFit));
  EXPECT_EQ(pixels.at(9, 10), transparent);
  EXPECT_EQ(pixels.at(10, 0), red);
  EXPECT_EQ(pixels.at(29, 19), green);
  EXPECT_EQ(pixels.at(30, 10), transparent);
}

TEST_F(ImageViewsTest, CentreThePictureInItsOwnSize) {
  const Pixels pixels = rendered(view(UIViewContentMode::Center));
  EXPECT_EQ(pixels.at(14, 10), transparent);
  EXPECT_EQ(pixels.at(15, 4), transparent);
  EXPECT_EQ(pixels.at(15, 5), red);
  EXPECT_EQ(pixels.at(24, 14), green);
  EXPECT_EQ(pixels.at(24, 15), transparent);
  EXPECT_EQ(pixels.at(25, 10), transparent);
}

TEST_F(ImageViewsTest, AreAsLargeAsTheirPicture) {
  EXPECT_EQ(UIImageView::initWithImage(makePicture(12, 6, 3, red)).bounds().size, CGSizeMake(4, 2));
  EXPECT_EQ(UIImageView::initWithImage(UIImage()).bounds().size, CGSize());
}

TEST_F(ImageViewsTest, ShowNothingForNone) {
  UIImageView empty = view(UIViewContentMode::ScaleToFill);
  empty.setImage(UIImage());
  EXPECT_EQ(rendered(empty), pixelsOf(makePicture(40, 20, 1, transparent)));
}

TEST_F(ImageViewsTest, DrawATemplateInTheSystemsBlueWithoutATint) {
  const UIImage shape = makePicture(2, 2, 1, red);
  const auto mode = UIImageRenderingMode::AlwaysTemplate;
  EXPECT_EQ(rendered(UIImageView::initWithImage(shape.imageWithRenderingMode(mode))),
            pixelsOf(makePicture(2, 2, 1, 0xff007aff)));
}

TEST_F(ImageViewsTest, IgnoreTheTintForOtherPictures) {
  UIImageView original = UIImageView::initWithImage(makePicture(2, 2, 1, red));
  original.setTintColor(opaque(0, 1, 0));
  EXPECT_EQ(rendered(original), pixelsOf(makePicture(2, 2, 1, red)));
}

TEST_F(ImageViewsTest, DrawBackgroundPictureSubviewsAndBorderInThisOrder) {
  UIImageView base = view(UIViewContentMode::Center);
  base.setBackgroundColor(opaque(0, 0, 1));
  base.addSubview(box({{18, 0}, {4, 20}}, opaque(1, 1, 1)));
  base.addSubview(box({{20, 8}, {1, 1}}, opaque(0, 0, 0)));
  base.layer().setBorderWidth(2);
  base.layer().setBorderColor(opaque(0, 1, 0).CGColor());
  const Pixels pixels = rendered(base);
  EXPECT_EQ(pixels.at(5, 5), blue);
  EXPECT_EQ(pixels.at(16, 10), red);
  EXPECT_EQ(pixels.at(19, 10), white);
  EXPECT_EQ(pixels.at(20, 8), black);
  EXPECT_EQ(pixels.at(19, 1), green);
  EXPECT_EQ(pixels.at(1, 10), green);
  EXPECT_EQ(pixels.at(2, 10), blue);
}

TEST_F(ImageViewsTest, AlphaIsThatOfTheWhole) {
  UIView base = box({{}, {4, 4}}, opaque(1, 0, 0));
  base.addSubview(box({{0, 0}, {2, 4}}, opaque(0, 1, 0)));
  base.setAlpha(0.5);
  const Pixels pixels = rendered(base);
  EXPECT_EQ(pixels.at(0, 0), 0x80008000);  // No red shines through.
  EXPECT_EQ(pixels.at(3, 0), 0x80800000);
  base.setAlpha(0);
  EXPECT_EQ(rendered(base), pixelsOf(makePicture(4, 4, 1, transparent)));
}

TEST_F(ImageViewsTest, ClipWhatLiesOutsideOfTheirShape) {
  UIView base = box({{}, {40, 40}}, UIColor());
  UIView inner = box({{10, 10}, {20, 20}}, UIColor());
  inner.addSubview(box({{-10, -10}, {40, 40}}, opaque(1, 0, 0)));
  inner.layer().setCornerRadius(8);
  base.addSubview(inner);
  EXPECT_EQ(rendered(base).at(0, 0), red);
  inner.setClipsToBounds(true);
  const Pixels clipped = rendered(base);
  EXPECT_EQ(clipped.at(9, 20), transparent);
  EXPECT_EQ(clipped.at(10, 10), transparent);
  EXPECT_EQ(clipped.at(20, 20), red);
}

TEST_F(ImageViewsTest, CornersAreRound) {
  UIView round = box({{}, {20, 20}}, opaque(1, 0, 0));
  round.layer().setCornerRadius(1000);
  const Pixels pixels = rendered(round, 3);
  for (const int corner : {2, 57}) EXPECT_EQ(pixels.at(corner, corner), transparent);
  EXPECT_EQ(pixels.at(30, 1), red);
  EXPECT_EQ(pixels.at(1, 30), red);
  EXPECT_EQ(pixels.at(30, 30), red);
}

TEST_F(ImageViewsTest, ABorderWiderThanTheViewFillsIt) {
  UIView view = box({{}, {4, 4}}, opaque(1, 0, 0));
  view.layer().setBorderColor(opaque(0, 1, 0).CGColor());
  view.layer().setBorderWidth(50);
  EXPECT_EQ(rendered(view), pixelsOf(makePicture(4, 4, 1, green)));
}

TEST_F(ImageViewsTest, LayersOfNoneAndContextsOfNoneDoNothing) {
  UIView().layer().setBorderWidth(1);
  UIView().layer().renderInContext(CGContext());
  box({{}, {4, 4}}, opaque(1, 0, 0)).layer().renderInContext(CGContext());
  EXPECT_FALSE(UIGraphicsGetCurrentContext());
}

}  // namespace
}  // namespace desktop_tests
