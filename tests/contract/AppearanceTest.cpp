#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Driver.h"

namespace {

using support::Driver;
using testing::ElementsAre;

constexpr const char* pages[] = {"QMRoot", "QMColorVC", "QMClockVC", "QMQuickActionsVC"};

TEST(Appearance, IsSetInOrderAndInstalledInInit) {
  const std::string accent =
      "UIColor(0.9647058823529412, 0.5725490196078431, 0.25098039215686274, 1)";
  const std::string white = "UIColor(1, 1, 1, 1)";
  for (const std::string page : pages) {
    Driver phone;
    EXPECT_TRUE(phone.initSucceeds(page, false));
    // The root page goes on with its bar.
    std::vector<std::string> first = phone.journal();
    first.resize(11);
    EXPECT_THAT(
        first,
        ElementsAre(page + " init", "HBAppearanceSettings init",
                    "HBAppearanceSettings setTintColor:" + accent,
                    "HBAppearanceSettings setNavigationBarTitleColor:" + white,
                    "HBAppearanceSettings setNavigationBarTintColor:" + white,
                    "HBAppearanceSettings setTableViewCellSeparatorColor:UIColor(0, 0, 0, 0)",
                    "HBAppearanceSettings setNavigationBarBackgroundColor:" + accent,
                    "HBAppearanceSettings setTableViewCellTextColor:" + accent,
                    "HBAppearanceSettings setTranslucentNavigationBar:YES",
                    "HBAppearanceSettings setLargeTitleStyle:2",
                    page + " hb_setAppearanceSettings:<HBAppearanceSettings>"));
  }
}

TEST(Appearance, IsNotBuiltWhenTheSuperclassRefuses) {
  for (const std::string page : pages) {
    Driver phone;
    EXPECT_FALSE(phone.initSucceeds(page, true));
    EXPECT_EQ(phone.journal().at(0), page + " init");
    EXPECT_THAT(phone.journal(), testing::Each(testing::Not(testing::HasSubstr("Appearance"))));
  }
}

}  // namespace
