#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/contract/Lines.h"
#include "tests/support/Driver.h"

namespace {

using support::between;
using support::Driver;
using support::Lines;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::Not;

const std::string accent =
    "UIColor(0.9647058823529412, 0.5725490196078431, 0.25098039215686274, 1)";
const std::string white = "UIColor(1, 1, 1, 1)";

constexpr const char* installsHeader = "UITableView setTableHeaderView:<UIImageView>";

const Lines look = {"QMRoot init",
                    "HBAppearanceSettings init",
                    "HBAppearanceSettings setTintColor:" + accent,
                    "HBAppearanceSettings setNavigationBarTitleColor:" + white,
                    "HBAppearanceSettings setNavigationBarTintColor:" + white,
                    "HBAppearanceSettings setTableViewCellSeparatorColor:UIColor(0, 0, 0, 0)",
                    "HBAppearanceSettings setNavigationBarBackgroundColor:" + accent,
                    "HBAppearanceSettings setTableViewCellTextColor:" + accent,
                    "HBAppearanceSettings setTranslucentNavigationBar:YES",
                    "HBAppearanceSettings setLargeTitleStyle:2",
                    "QMRoot hb_setAppearanceSettings:<HBAppearanceSettings>"};

// The radius is half of the height that the switch had before it grew.
const Lines enableSwitch = {"UISwitch init",
                            "UISwitch setOnTintColor:" + accent,
                            "UISwitch layer",
                            "CALayer setBorderWidth:1",
                            "UISwitch layer",
                            "CALayer setBorderColor:" + white,
                            "UISwitch layer",
                            "UISwitch frame",
                            "CALayer setCornerRadius:15.5",
                            "UISwitch setClipsToBounds:YES",
                            "UISwitch frame",
                            "UISwitch setFrame:{{-1, -1}, {53, 33}}",
                            "UISwitch addTarget:QMRoot action:toggleState forControlEvents:64",
                            "UIBarButtonItem initWithCustomView:<UISwitch>",
                            "UINavigationItem setRightBarButtonItem:<UIBarButtonItem>"};

Lines titleView(const std::string& title, const std::string& picture) {
  return {"UIView new",
          "UINavigationItem setTitleView:<UIView>",
          "UILabel initWithFrame:{{0, 0}, {10, 10}}",
          "UIFont boldSystemFontOfSize:17",
          "UILabel setFont:bold 17.000000",
          "UILabel setTranslatesAutoresizingMaskIntoConstraints:NO",
          "UINavigationItem title",
          "UILabel setText:" + title,
          "UILabel setText:\"Quillmere\"",
          "UILabel setTextColor:" + white,
          "UILabel setTextAlignment:1",
          "UINavigationItem titleView",
          "UIView addSubview:<UILabel>",
          "UIImageView initWithFrame:{{0, 0}, {10, 10}}",
          "UIImageView setContentMode:1",
          "UIImage imageWithContentsOfFile:"
          "\"/Library/PreferenceBundles/Quillmere.bundle/Icon@2x.png\"",
          "UIImageView setImage:" + picture,
          "UIImageView setTranslatesAutoresizingMaskIntoConstraints:NO",
          "UIImageView setAlpha:0",
          "UINavigationItem titleView",
          "UIView addSubview:<UIImageView>",
          "UINavigationItem titleView",
          "NSLayoutAnchor constraintEqualToAnchor:UIView.top",
          "NSLayoutAnchor constraintEqualToAnchor:UIView.leading",
          "NSLayoutAnchor constraintEqualToAnchor:UIView.trailing",
          "NSLayoutAnchor constraintEqualToAnchor:UIView.bottom",
          "NSLayoutAnchor constraintEqualToAnchor:UIView.top",
          "NSLayoutAnchor constraintEqualToAnchor:UIView.leading",
          "NSLayoutAnchor constraintEqualToAnchor:UIView.trailing",
          "NSLayoutAnchor constraintEqualToAnchor:UIView.bottom",
          "NSLayoutConstraint activateConstraints:UILabel.top = UIView.top, UILabel.leading = "
          "UIView.leading, UILabel.trailing = UIView.trailing, UILabel.bottom = UIView.bottom, "
          "UIImageView.top = UIView.top, UIImageView.leading = UIView.leading, "
          "UIImageView.trailing = UIView.trailing, UIImageView.bottom = UIView.bottom"};
}

Lines operator+(Lines lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

/// The header with its picture; `drawing` is missing when there is nothing to draw.
Lines header(const Lines& drawing) {
  return Lines{"QMRoot viewDidLoad", "UITableView bounds",
               "UIImage imageWithContentsOfFile:"
               "\"/Library/PreferenceBundles/Quillmere.bundle/Header.png\"",
               "UIGraphics beginImageContextWithOptions:{120, 120} opaque:NO scale:0"} +
         drawing +
         Lines{"UIGraphics getImageFromCurrentImageContext",
               "UIGraphics endImageContext",
               "UIImageView initWithFrame:{{0, -50}, {390, 130}}",
               "UIImageView setImage:<UIImage>",
               "UIImageView setBackgroundColor:UIColor(0, 0, 0, 0)",
               "UIImageView setContentMode:4",
               "UIImageView setAutoresizingMask:2",
               installsHeader};
}

struct BarAndHeader : testing::Test {
  BarAndHeader() { phone.forget(); }
  Lines loading() const { return between(phone.journal(), "QMRoot viewDidLoad", installsHeader); }
  Driver phone;
};

TEST_F(BarAndHeader, LookThenSwitchThenTitleViewAreBuiltInInit) {
  EXPECT_TRUE(phone.initSucceeds("QMRoot", false));
  EXPECT_THAT(phone.journal(),
              ElementsAreArray(look + enableSwitch + titleView("nil", "<UIImage>")));
}

TEST_F(BarAndHeader, PageThatHasATitleStillSaysTheProductsNameAtFirst) {
  phone.reopen();
  EXPECT_THAT(phone.journal(), Contains("UILabel setText:\"Quillmere\"").Times(3));
}

TEST_F(BarAndHeader, RefusedInitStillRunsTheTitleViewAndNothingElse) {
  EXPECT_FALSE(phone.initSucceeds("QMRoot", true));
  const Lines journal = phone.journal();
  ASSERT_GT(journal.size(), 2U);
  EXPECT_EQ(journal[0], "QMRoot init");
  EXPECT_EQ(journal[1], "UIView new");
  EXPECT_EQ(journal.back(), "NSLayoutConstraint activateConstraints:");
  for (const char* absent :
       {"Appearance", "UISwitch", "UIBarButtonItem", "UINavigationItem", "CALayer", "addSubview"}) {
    EXPECT_THAT(journal, Each(Not(HasSubstr(absent)))) << absent;
  }
}

TEST_F(BarAndHeader, MissingIconLeavesItsViewEmpty) {
  phone.removeBundleFile("Icon@2x.png");
  EXPECT_TRUE(phone.initSucceeds("QMRoot", false));
  EXPECT_THAT(phone.journal(), ElementsAreArray(look + enableSwitch + titleView("nil", "nil")));
  EXPECT_THAT(phone.reports(), testing::IsEmpty());
}

TEST_F(BarAndHeader, HeaderIsBuiltWhenTheViewIsLoaded) {
  phone.reopen();
  EXPECT_THAT(loading(), ElementsAreArray(header({"UIImage drawInRect:{{0, 0}, {120, 120}}"})));
}

TEST_F(BarAndHeader, HeaderIsAsWideAsTheTableIsThen) {
  phone.load(414);
  EXPECT_THAT(phone.journal(), Contains("UIImageView initWithFrame:{{0, -50}, {414, 130}}"));
}

TEST_F(BarAndHeader, MissingHeaderPictureLeavesABlankOne) {
  phone.removeBundleFile("Header.png");
  phone.reopen();
  EXPECT_THAT(loading(), ElementsAreArray(header({})));
  EXPECT_THAT(phone.reports(), testing::IsEmpty());
}

TEST_F(BarAndHeader, HeaderIsBuiltOncePerView) {
  phone.reopen();
  phone.tap("Clock");
  phone.back();
  EXPECT_THAT(phone.journal(), Contains(installsHeader).Times(1));
}

}  // namespace
