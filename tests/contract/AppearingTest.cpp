#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/contract/Lines.h"
#include "tests/support/Driver.h"

namespace {

using support::Driver;
using testing::ElementsAre;

TEST(Appearing, UpdatesTheTitleAndThenTheSwitch) {
  Driver phone;
  phone.tap("Clock");
  phone.forget();
  phone.back();
  EXPECT_THAT(support::between(phone.journal(), "QMRoot viewWillAppear:YES",
                               "UISwitch setOn:YES animated:YES"),
              ElementsAre("QMRoot viewWillAppear:YES", "UINavigationItem title",
                          "UILabel setText:\"Quillmere\"",
                          "HBPreferences initWithIdentifier:\"com.orvalen.quillmere\"",
                          "HBPreferences objectForKey:\"enabledSwitch\"",
                          "UISwitch setOn:YES animated:YES"));
}

TEST(Appearing, BringsThePagesOwnTitleIntoTheBar) {
  Driver phone;
  phone.putListResource(11, "Another Title");
  phone.reopen();
  EXPECT_EQ(phone.titleText(), "Quillmere");
  phone.call("lottiesList");
  phone.back();
  EXPECT_EQ(phone.titleText(), "Another Title");
}

TEST(Appearing, LeavesTheBarEmptyWhenThePageHasNoTitle) {
  Driver phone;
  phone.takeTitleAway();
  phone.tap("Clock");
  phone.forget();
  phone.back();
  EXPECT_THAT(phone.journal(), testing::Contains("UILabel setText:nil"));
  EXPECT_EQ(phone.titleText(), "");
}

TEST(Appearing, LeavesTheTitlesHalvesAlone) {
  Driver phone;
  phone.tap("Clock");
  phone.forget();
  phone.back();
  EXPECT_THAT(phone.journal(), testing::Each(testing::Not(testing::HasSubstr("setAlpha"))));
}

TEST(RootMethods, AnswerEverySelectorThatRowsAndControlsSend) {
  Driver phone;
  for (const char* selector :
       {"toggleState", "setEnableSwitchState", "respring", "respringAfterEnable",
        "resetPreferences", "lottiesList", "presentSupportMailController:", "scrollViewDidScroll:",
        "readPreferenceValue:", "setPreferenceValue:specifier:", "titleLabel",
        "setTitleLabel:", "iconView", "setIconView:", "enableSwitch", "setEnableSwitch:"}) {
    EXPECT_TRUE(phone.answers(selector)) << selector;
  }
  EXPECT_FALSE(phone.answers("noSuchSelector"));
}

TEST(RootMethods, SetterOfTheSwitchKeepsWhatItIsGiven) {
  Driver phone;
  phone.call("setEnableSwitch:");
  phone.forget();
  phone.call("setEnableSwitchState");
  EXPECT_THAT(phone.journal(),
              ElementsAre("HBPreferences initWithIdentifier:\"com.orvalen.quillmere\"",
                          "HBPreferences objectForKey:\"enabledSwitch\""));
}

}  // namespace
