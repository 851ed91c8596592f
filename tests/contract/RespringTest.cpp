#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Driver.h"

namespace {

using support::Driver;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// Both prompts that offer a respring, by the method that asks.
class Respring : public testing::TestWithParam<const char*> {
 protected:
  void confirm() {
    phone.call(GetParam());
    phone.forget();
    phone.answer("Confirm");
  }
  Driver phone;
};

INSTANTIATE_TEST_SUITE_P(Root, Respring, testing::Values("respring", "respringAfterEnable"),
                         [](const auto& test) { return std::string(test.param); });

TEST_P(Respring, BlursThePageFirst) {
  confirm();
  EXPECT_THAT(
      phone.journal(),
      ElementsAre("UIBlurEffect effectWithStyle:4",
                  "UIVisualEffectView initWithEffect:<UIBlurEffect>", "UIView bounds",
                  "UIVisualEffectView setFrame:{{0, 0}, {390, 844}}",
                  "UIVisualEffectView setAlpha:0", "UIView addSubview:<UIVisualEffectView>",
                  "UIView animateWithDuration:1 delay:0 options:131072 animations:completion:",
                  "UIVisualEffectView setAlpha:1"));
}

TEST_P(Respring, FollowsWhenTheBlurIsComplete) {
  confirm();
  phone.forget();
  phone.pass(0.99);
  EXPECT_THAT(phone.journal(), IsEmpty());
  EXPECT_FALSE(phone.isRestarting());
  phone.pass(0.01);
  EXPECT_THAT(phone.journal(), ElementsAre("NSURL URLWithString:\"prefs:root=Quillmere\"",
                                           "HBRespringController respringAndReturnTo:"
                                           "prefs:root=Quillmere"));
  EXPECT_TRUE(phone.isRestarting());
}

TEST_P(Respring, LeavesTheBlurOverThePage) {
  EXPECT_EQ(phone.blur(), std::nullopt);
  confirm();
  EXPECT_EQ(phone.blur(), 1.0);
  phone.pass(0.99);
  EXPECT_EQ(phone.blur(), 1.0);
}

TEST_P(Respring, ReturnsToTheBundlesPageMadeAnew) {
  confirm();
  phone.pass(1);
  phone.forget();
  phone.pass(10);
  EXPECT_FALSE(phone.isRestarting());
  EXPECT_THAT(phone.titles(), ElementsAre("Quillmere"));
  EXPECT_THAT(phone.journal(), Contains("QMRoot init").Times(1));
  EXPECT_EQ(phone.blur(), std::nullopt);
}

TEST_P(Respring, PostsNoNotificationAndStoresNothing) {
  confirm();
  phone.pass(10);
  EXPECT_THAT(phone.notifications(), IsEmpty());
  EXPECT_EQ(phone.fileBytes(), std::nullopt);
}

TEST_P(Respring, HappensOnce) {
  confirm();
  phone.pass(10);
  phone.forget();
  phone.pass(10);
  EXPECT_THAT(phone.journal(), IsEmpty());
  EXPECT_FALSE(phone.isRestarting());
}

}  // namespace
