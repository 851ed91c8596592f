#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UIVisualEffectView.h"
#include "settings/Views.h"
#include "tests/settings/PhoneScreenTest.h"

namespace settings_tests {
namespace {

using namespace platform;
using nlohmann::json;

UIImage picture(const CGSize& size, double scale) {
  UIGraphicsBeginImageContextWithOptions(size, Opaque::No, scale);
  const UIImage made = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return made;
}

class ViewsTest : public PhoneScreenTest {
 protected:
  /// The view's node, made alone.
  json nodeOf(const UIView& view) {
    drawn.clear();
    const json id = settings::addView(drawn, view, pictures);
    return drawn.at(id.get<std::string>());
  }

  settings::Tree drawn;
};

TEST_F(ViewsTest, ALabelShowsItsText) {
  UILabel label = UILabel::initWithFrame({});
  label.setText("Text");
  label.setTextColor(UIColor::whiteColor());
  label.setTextAlignment(NSTextAlignment::Right);
  label.setFont(UIFont::boldSystemFontOfSize(20));
  EXPECT_EQ(nodeOf(label), (json{{"kind", "label"},
                                 {"text", "Text"},
                                 {"color", "#ffffffff"},
                                 {"size", 20},
                                 {"bold", true},
                                 {"align", "right"},
                                 {"alpha", 1},
                                 {"fade", 0},
                                 {"children", json::array()}}));
}

TEST_F(ViewsTest, ALabelOfNothingIsPlain) {
  const json label = nodeOf(UILabel::initWithFrame({}));
  EXPECT_EQ(label["text"], "");
  EXPECT_EQ(label["size"], 17);
  EXPECT_EQ(label["bold"], false);
  EXPECT_EQ(label["align"], "left");
}

TEST_F(ViewsTest, APictureSaysWhereItIsAndHowLarge) {
  UIImageView view = UIImageView::initWithFrame({{}, {40, 20}});
  view.setContentMode(UIViewContentMode::ScaleAspectFit);
  view.setImage(picture({6, 4}, 3));
  const json node = nodeOf(view);
  EXPECT_EQ(node["kind"], "image");
  EXPECT_EQ(node["mode"], "fit");
  EXPECT_EQ(node["width"], 40);
  EXPECT_EQ(node["height"], 20);
  EXPECT_EQ(node["imageWidth"], 6);
  EXPECT_EQ(node["imageHeight"], 4);
  EXPECT_TRUE(pictures.file(node["source"].get<std::string>()));
}

TEST_F(ViewsTest, AViewOfNoPictureHasNoSource) {
  const json node = nodeOf(UIImageView::initWithFrame({{}, {40, 20}}));
  EXPECT_EQ(node["source"], nullptr);
  EXPECT_EQ(node["mode"], "fill");
  EXPECT_FALSE(node.contains("imageWidth"));
}

TEST_F(ViewsTest, AFadingBlurSaysHowLongItTakes) {
  UIVisualEffectView blur =
      UIVisualEffectView::initWithEffect(UIBlurEffect::effectWithStyle(UIBlurEffectStyle::Regular));
  UIView::animateWithDuration(0.5, [&] { blur.setAlpha(0.25); });
  EXPECT_EQ(nodeOf(blur),
            (json{{"kind", "blur"}, {"alpha", 0.25}, {"fade", 0.5}, {"children", json::array()}}));
}

TEST_F(ViewsTest, ViewsHoldViewsTheLowestOneFirst) {
  UIView outer = UIView::init();
  UIView inner = UIView::init();
  UILabel deep = UILabel::initWithFrame({});
  inner.addSubview(deep);
  outer.addSubview(UIImageView::initWithFrame({}));
  outer.addSubview(inner);
  const json node = nodeOf(outer);
  EXPECT_EQ(node["kind"], "view");
  ASSERT_EQ(node["children"].size(), 2U);
  EXPECT_EQ(drawn.at(node["children"][0])["kind"], "image");
  EXPECT_EQ(drawn.at(drawn.at(node["children"][1])["children"][0])["kind"], "label");
  EXPECT_EQ(drawn.size(), 4U);
}

TEST_F(ViewsTest, NoneIsNull) {
  EXPECT_EQ(settings::addView(drawn, UIView(), pictures), nullptr);
  EXPECT_EQ(settings::addBarSwitch(drawn, UIView(), "Label"), nullptr);
  EXPECT_EQ(settings::addBarSwitch(drawn, UIView::init(), "Label"), nullptr);
  EXPECT_TRUE(drawn.empty());
}

class PicturesTest : public PhoneScreenTest {};

TEST_F(PicturesTest, OneHasOneAddressAndIsAPngFile) {
  const UIImage image = picture({1, 1}, 1);
  const std::string address = pictures.address(image);
  EXPECT_EQ(pictures.address(image), address);
  const auto file = pictures.file(address);
  ASSERT_TRUE(file);
  EXPECT_EQ(file->type, "image/png");
  EXPECT_EQ(file->bytes.substr(0, 8), "\x89PNG\r\n\x1a\n");
  EXPECT_NE(pictures.address(picture({1, 1}, 1)), address);
}

TEST_F(PicturesTest, OnlyThoseShownOfLateAreKept) {
  const UIImage often = picture({1, 1}, 1);
  const std::string first = pictures.address(picture({1, 1}, 1));
  for (std::size_t i = 0; i < 3 * settings::Pictures::maximum; ++i) {
    pictures.address(picture({1, 1}, 1));
    pictures.address(often);
  }
  EXPECT_FALSE(pictures.file(first));
  EXPECT_TRUE(pictures.file(pictures.address(often)));
}

TEST_F(PicturesTest, AsManyAreKeptAsItSays) {
  std::vector<std::string> addresses;
  for (std::size_t i = 0; i <= settings::Pictures::maximum; ++i) {
    addresses.push_back(pictures.address(picture({1, 1}, 1)));
  }
  EXPECT_FALSE(pictures.file(addresses.front()));
  for (std::size_t i = 1; i < addresses.size(); ++i) EXPECT_TRUE(pictures.file(addresses[i]));
}

TEST_F(PicturesTest, OtherAddressesHaveNoFile) {
  const std::string address = pictures.address(picture({1, 1}, 1));
  for (const std::string& other :
       {std::string(), std::string("pictures/"), std::string("pictures/0.png"), address + "?",
        '/' + address, std::string("pictures/01.png"), address + "/"}) {
    EXPECT_FALSE(pictures.file(other)) << other;
  }
}

}  // namespace
}  // namespace settings_tests
