#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/contract/Rows.h"
#include "tests/support/Driver.h"

namespace {

using plist::Value;
using support::Driver;
using testing::ElementsAre;

struct QuickActionsPage : testing::Test {
  QuickActionsPage() { phone.tap("Quick Actions"); }
  Driver phone;
};

TEST_F(QuickActionsPage, HasItsSevenRows) {
  using namespace expected;
  EXPECT_THAT(
      phone.rows(),
      ElementsAre(group("Quick Actions Buttons", "• Changes require a respring to be applied"),
                  toggle("Flash Animation", "flashEnabled"),
                  toggle("Camera Animation", "cameraEnabled"),
                  group("Loop Animation", "• Default = YES"),
                  toggle("Loop Animation", "quickActionsLoopAnimation"),
                  group("Size", "• Default = 75"), slider("Size", "quickActionsSize", 1, 200, 75)));
}

TEST_F(QuickActionsPage, ShowsItsDefaultsWhileNothingIsStored) {
  EXPECT_EQ(phone.shown("flashEnabled"), "on");
  EXPECT_EQ(phone.shown("cameraEnabled"), "on");
  EXPECT_EQ(phone.shown("quickActionsLoopAnimation"), "on");
  EXPECT_EQ(phone.shown("quickActionsSize"), "75");
}

TEST_F(QuickActionsPage, SliderStopsAtOneAndTwoHundred) {
  phone.slide("quickActionsSize", 0);
  EXPECT_EQ(phone.file().find("quickActionsSize")->real(), 1);
  phone.slide("quickActionsSize", 201);
  EXPECT_EQ(phone.file().find("quickActionsSize")->real(), 200);
}

TEST_F(QuickActionsPage, EachSwitchWritesOnlyItsOwnKey) {
  phone.toggle("flashEnabled", false);
  EXPECT_EQ(phone.file().size(), 1U);
  EXPECT_EQ(*phone.file().find("flashEnabled"), Value(false));
  EXPECT_EQ(phone.shown("cameraEnabled"), "on");
}

TEST_F(QuickActionsPage, BuildsItsRowsOnce) { EXPECT_TRUE(phone.listIsCached()); }

}  // namespace
