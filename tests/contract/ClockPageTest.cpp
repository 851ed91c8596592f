#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/contract/Rows.h"
#include "tests/support/Driver.h"

namespace {

using plist::Value;
using support::Driver;
using testing::ElementsAre;

struct ClockPage : testing::Test {
  ClockPage() { phone.tap("Clock"); }
  Driver phone;
};

TEST_F(ClockPage, HasItsTwelveRows) {
  using namespace expected;
  EXPECT_THAT(
      phone.rows(),
      ElementsAre(group("Clock", "• Changes require a respring to be applied"),
                  toggle("Enabled", "clockEnabled"), group("Loop Animation", "• Default = YES"),
                  toggle("Loop Animation", "clockLoopAnimation"), group("Size", "• Default = 75"),
                  slider("Size", "clockDigitSize", 1, 200, 75),
                  group("Vertical Alignment", "• Default = 0"),
                  slider("Vertical Alignment", "clockVerticalAlignment", -100, 100, 0),
                  group("Digits Spacing", "• Default = -20"),
                  slider("Digits Spacing", "clockDigitsSpacing", -100, 100, -20),
                  group("Clock Colon Size", "• Default = 50"),
                  slider("Size", "colonHeight", 1, 200, 50)));
}

TEST_F(ClockPage, ShowsItsDefaultsWhileNothingIsStored) {
  EXPECT_EQ(phone.shown("clockEnabled"), "on");
  EXPECT_EQ(phone.shown("clockLoopAnimation"), "on");
  EXPECT_EQ(phone.shown("clockDigitSize"), "75");
  EXPECT_EQ(phone.shown("clockVerticalAlignment"), "0");
  EXPECT_EQ(phone.shown("clockDigitsSpacing"), "-20");
  EXPECT_EQ(phone.shown("colonHeight"), "50");
}

TEST_F(ClockPage, SizeSliderStopsAtOneAndTwoHundred) {
  phone.slide("clockDigitSize", -1000);
  EXPECT_EQ(phone.file().find("clockDigitSize")->real(), 1);
  phone.slide("clockDigitSize", 1000);
  EXPECT_EQ(phone.file().find("clockDigitSize")->real(), 200);
}

TEST_F(ClockPage, OffsetSlidersGoBelowZero) {
  for (const char* key : {"clockVerticalAlignment", "clockDigitsSpacing"}) {
    phone.slide(key, -1000);
    EXPECT_EQ(phone.file().find(key)->real(), -100);
    phone.slide(key, 1000);
    EXPECT_EQ(phone.file().find(key)->real(), 100);
  }
}

TEST_F(ClockPage, SlidersStopAtWholeNumbers) {
  phone.slide("clockDigitSize", 80.4);
  EXPECT_EQ(phone.shown("clockDigitSize"), "80");
  phone.slide("clockVerticalAlignment", -33.6);
  EXPECT_EQ(phone.shown("clockVerticalAlignment"), "-34");
}

TEST_F(ClockPage, RowsLabelledSizeWriteDifferentKeys) {
  phone.slide("clockDigitSize", 10);
  phone.slide("colonHeight", 20);
  EXPECT_EQ(phone.file().size(), 2U);
  EXPECT_EQ(phone.file().find("clockDigitSize")->real(), 10);
  EXPECT_EQ(phone.file().find("colonHeight")->real(), 20);
}

TEST_F(ClockPage, SwitchStoresABoolean) {
  phone.toggle("clockEnabled", false);
  EXPECT_EQ(*phone.file().find("clockEnabled"), Value(false));
  phone.back();
  phone.tap("Clock");
  EXPECT_EQ(phone.shown("clockEnabled"), "off");
}

TEST_F(ClockPage, ChangePostsTheFixedNotificationOnly) {
  phone.forget();
  phone.slide("colonHeight", 60);
  EXPECT_THAT(phone.notifications(), ElementsAre("com.orvalen.quillmere.prefs-changed"));
}

TEST_F(ClockPage, BuildsItsRowsOnce) { EXPECT_TRUE(phone.listIsCached()); }

TEST_F(ClockPage, IsBuiltAnewForEachVisit) {
  phone.slide("colonHeight", 60);
  phone.back();
  EXPECT_THAT(phone.titles(), ElementsAre("Quillmere"));
  phone.tap("Clock");
  EXPECT_THAT(phone.titles(), ElementsAre("Quillmere", "Clock"));
  EXPECT_EQ(phone.shown("colonHeight"), "60");
}

}  // namespace
