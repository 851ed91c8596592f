#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Driver.h"

namespace {

using plist::Value;
using support::Driver;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* service = "HBPreferences initWithIdentifier:\"com.orvalen.quillmere\"";

plist::Dictionary stored(const Value& value) {
  plist::Dictionary dictionary;
  dictionary.set("enabledSwitch", value);
  return dictionary;
}

struct MasterSwitch : testing::Test {
  void appearAgain() {
    phone.tap("Clock");
    phone.back();
  }
  Driver phone;
};

TEST_F(MasterSwitch, IsOnWhileNothingIsStored) {
  EXPECT_TRUE(phone.switchIsOn());
  phone.putFile(plist::Dictionary());
  phone.reopen();
  EXPECT_TRUE(phone.switchIsOn());
}

TEST_F(MasterSwitch, IsOffOnEveryAppearanceWhileNoIsStored) {
  phone.putFile(stored(Value(false)));
  phone.reopen();
  EXPECT_FALSE(phone.switchIsOn());
  for (int visit = 0; visit < 2; ++visit) {
    appearAgain();
    EXPECT_FALSE(phone.switchIsOn());
  }
}

TEST_F(MasterSwitch, TakesStoredNumbersAsTheirTruth) {
  for (const auto& [number, on] : {std::pair(0, false), {1, true}, {2, true}}) {
    phone.putFile(stored(Value::integer(number)));
    phone.reopen();
    EXPECT_EQ(phone.switchIsOn(), on) << number;
  }
}

TEST_F(MasterSwitch, IsLoadedFromTheServiceAndMovedWithAnimation) {
  phone.putFile(stored(Value(false)));
  phone.forget();
  phone.call("setEnableSwitchState");
  EXPECT_THAT(phone.journal(), ElementsAre(service, "HBPreferences objectForKey:\"enabledSwitch\"",
                                           "UISwitch setOn:NO animated:YES"));
}

TEST_F(MasterSwitch, IsMovedWithAnimationAlsoWhileNothingIsStored) {
  phone.forget();
  phone.call("setEnableSwitchState");
  EXPECT_THAT(phone.journal(), ElementsAre(service, "HBPreferences objectForKey:\"enabledSwitch\"",
                                           "UISwitch setOn:YES animated:YES"));
}

TEST_F(MasterSwitch, IsRefreshedWhenThePageComesBack) {
  phone.tap("Clock");
  phone.putFile(stored(Value(false)));
  phone.back();
  EXPECT_FALSE(phone.switchIsOn());
  phone.tap("Clock");
  phone.removeFile();
  phone.back();
  EXPECT_TRUE(phone.switchIsOn());
}

TEST_F(MasterSwitch, StoresItsPositionAndThenAsks) {
  phone.forget();
  phone.flip(false);
  EXPECT_THAT(
      phone.journal(),
      ElementsAre(
          service, "UISwitch isOn", "HBPreferences setObject:NO forKey:\"enabledSwitch\"",
          "UIAlertController alertControllerWithTitle:\"Quillmere\" message:\"Enabling or "
          "Disabling the tweak requires a respring, Do you want to respring?\" preferredStyle:1",
          "UIAlertAction actionWithTitle:\"Confirm\" style:2 handler:handler",
          "UIAlertController addAction:<UIAlertAction Confirm>",
          "UIAlertAction actionWithTitle:\"Cancel\" style:1 handler:nil",
          "UIAlertController addAction:<UIAlertAction Cancel>",
          "QMRoot presentViewController:<UIAlertController> animated:YES completion:nil"));
  EXPECT_EQ(phone.file(), stored(Value(false)));
}

TEST_F(MasterSwitch, LeavesOtherKeysAlone) {
  plist::Dictionary expected;
  expected.set("clockDigitSize", Value::integer(80));
  phone.putFile(expected);
  phone.flip(false);
  expected.set("enabledSwitch", Value(false));
  EXPECT_EQ(phone.file(), expected);
}

TEST_F(MasterSwitch, PostsNoNotification) {
  phone.forget();
  phone.flip(false);
  phone.answer("Cancel");
  EXPECT_THAT(phone.notifications(), IsEmpty());
}

TEST_F(MasterSwitch, KeepsThePositionOfACancelledPrompt) {
  phone.flip(false);
  phone.answer("Cancel");
  EXPECT_EQ(phone.file(), stored(Value(false)));
  EXPECT_FALSE(phone.switchIsOn());
  appearAgain();
  EXPECT_FALSE(phone.switchIsOn());
}

TEST_F(MasterSwitch, KeepsThePositionThroughTheRespring) {
  phone.flip(false);
  phone.answer("Confirm");
  phone.pass(10);
  EXPECT_EQ(phone.file(), stored(Value(false)));
  EXPECT_FALSE(phone.switchIsOn());
}

TEST_F(MasterSwitch, StoresYesWhenTurnedOnAgain) {
  phone.putFile(stored(Value(false)));
  phone.reopen();
  phone.flip(true);
  EXPECT_EQ(phone.file(), stored(Value(true)));
}

TEST_F(MasterSwitch, ReportsATapThatMovesNothing) {
  phone.flip(true);
  EXPECT_EQ(phone.file(), stored(Value(true)));
  EXPECT_TRUE(phone.alert());
}

TEST_F(MasterSwitch, ReleasedOutsideStoresNothingAndAsksNothing) {
  phone.forget();
  phone.flip(false, false);
  EXPECT_THAT(phone.journal(), IsEmpty());
  EXPECT_EQ(phone.fileBytes(), std::nullopt);
  EXPECT_FALSE(phone.alert());
}

TEST_F(MasterSwitch, ReleasedOutsideStaysAsItWasPutUntilTheNextAppearance) {
  phone.flip(false, false);
  EXPECT_FALSE(phone.switchIsOn());
  appearAgain();
  EXPECT_TRUE(phone.switchIsOn());
}

}  // namespace
