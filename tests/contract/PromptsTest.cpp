#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Driver.h"

namespace {

using support::AlertFacts;
using support::Driver;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* respring = "Do you really want to respring?";
constexpr const char* afterEnable =
    "Enabling or Disabling the tweak requires a respring, Do you want to respring?";
constexpr const char* reset = "Do you really want to Reset All Settings?";

struct Case {
  const char* selector;
  const char* message;
};

class Prompts : public testing::TestWithParam<Case> {
 protected:
  Driver phone;
};

INSTANTIATE_TEST_SUITE_P(Root, Prompts,
                         testing::Values(Case{"respring", respring},
                                         Case{"respringAfterEnable", afterEnable},
                                         Case{"resetPreferences", reset}),
                         [](const auto& test) { return std::string(test.param.selector); });

AlertFacts asking(const char* message) {
  return {"Quillmere", message, {"Confirm (2)", "Cancel (1)"}};
}

TEST_P(Prompts, AreBuiltAndPresentedInOrder) {
  phone.forget();
  phone.call(GetParam().selector);
  EXPECT_THAT(
      phone.journal(),
      ElementsAre("UIAlertController alertControllerWithTitle:\"Quillmere\" message:\"" +
                      std::string(GetParam().message) + "\" preferredStyle:1",
                  "UIAlertAction actionWithTitle:\"Confirm\" style:2 handler:handler",
                  "UIAlertController addAction:<UIAlertAction Confirm>",
                  "UIAlertAction actionWithTitle:\"Cancel\" style:1 handler:nil",
                  "UIAlertController addAction:<UIAlertAction Cancel>",
                  "QMRoot presentViewController:<UIAlertController> animated:YES completion:nil"));
}

TEST_P(Prompts, OfferToConfirmAndToCancel) {
  phone.call(GetParam().selector);
  EXPECT_EQ(phone.alert(), asking(GetParam().message));
}

TEST_P(Prompts, AreAskedAnewEachTime) {
  for (int times = 0; times < 2; ++times) {
    phone.call(GetParam().selector);
    EXPECT_TRUE(phone.alert());
    phone.answer("Cancel");
    EXPECT_FALSE(phone.alert());
  }
}

TEST_P(Prompts, CancelDoesNothing) {
  plist::Dictionary settings;
  settings.set("enabledSwitch", plist::Value(false));
  phone.putFile(settings);
  phone.call(GetParam().selector);
  phone.forget();
  phone.answer("Cancel");
  phone.pass(10);
  EXPECT_THAT(phone.journal(), IsEmpty());
  EXPECT_THAT(phone.notifications(), IsEmpty());
  EXPECT_FALSE(phone.alert());
  EXPECT_FALSE(phone.isRestarting());
  EXPECT_EQ(phone.blur(), std::nullopt);
  EXPECT_EQ(phone.file(), settings);
}

TEST_P(Prompts, DoNothingBeforeTheyAreAnswered) {
  phone.call(GetParam().selector);
  phone.forget();
  phone.pass(10);
  EXPECT_THAT(phone.journal(), IsEmpty());
  EXPECT_TRUE(phone.alert());
}

TEST(PromptRows, AskBeforeTheRespringAndBeforeTheReset) {
  Driver phone;
  phone.tap("Respring");
  EXPECT_EQ(phone.alert(), asking(respring));
  phone.answer("Cancel");
  phone.tap("Reset All Settings");
  EXPECT_EQ(phone.alert(), asking(reset));
}

TEST(PromptRows, MasterSwitchAsksForItsRespring) {
  Driver phone;
  phone.flip(false);
  EXPECT_EQ(phone.alert(), asking(afterEnable));
}

}  // namespace
