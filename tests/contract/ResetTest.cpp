#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Driver.h"

namespace {

using plist::Value;
using support::Driver;
using testing::ElementsAre;
using testing::IsEmpty;

struct Reset : testing::Test {
  void confirm() {
    phone.tap("Reset All Settings");
    phone.forget();
    phone.answer("Confirm");
  }
  Driver phone;
};

plist::Dictionary everyKey() {
  plist::Array names;
  names.append(Value::string("Snow"));
  plist::Dictionary settings;
  settings.set("enabledSwitch", Value(false));
  settings.set("showedWelcomeVC", Value(true));
  settings.set("enabledLotties", Value(names));
  settings.set("colorMode", Value::integer(2));
  settings.set("tintColor", Value::string("FF112233"));
  for (const char* key : {"clockEnabled", "clockLoopAnimation", "flashEnabled", "cameraEnabled",
                          "quickActionsLoopAnimation"}) {
    settings.set(key, Value(false));
  }
  for (const char* key : {"clockDigitSize", "clockVerticalAlignment", "clockDigitsSpacing",
                          "colonHeight", "quickActionsSize"}) {
    settings.set(key, Value::integer(12));
  }
  return settings;
}

TEST_F(Reset, ClearsTheDomainAndPutsTheRestOffByATenthOfASecond) {
  phone.putFile(everyKey());
  confirm();
  EXPECT_THAT(phone.journal(),
              ElementsAre("HBPreferences initWithIdentifier:\"com.orvalen.quillmere\"",
                          "HBPreferences removeAllObjects", "dispatch after:1e+08"));
}

TEST_F(Reset, DeletesTheFileAndThenResprings) {
  phone.putFile(everyKey());
  confirm();
  phone.forget();
  phone.pass(0.1);
  EXPECT_THAT(
      phone.journal(),
      ElementsAre("NSFileManager defaultManager",
                  "NSFileManager removeItemAtPath:"
                  "\"/var/mobile/Library/Preferences/com.orvalen.quillmere.plist\" error:nil",
                  "NSURL URLWithString:\"prefs:root=Quillmere\"",
                  "HBRespringController respringAndReturnTo:prefs:root=Quillmere"));
  EXPECT_EQ(phone.fileBytes(), std::nullopt);
  EXPECT_TRUE(phone.isRestarting());
}

TEST_F(Reset, LeavesTheFileEmptyUntilItIsDeleted) {
  phone.putFile(everyKey());
  confirm();
  phone.forget();
  phone.pass(0.09);
  EXPECT_EQ(phone.file(), plist::Dictionary());
  EXPECT_THAT(phone.journal(), IsEmpty());
  EXPECT_FALSE(phone.isRestarting());
}

TEST_F(Reset, RemovesEveryKey) {
  phone.putFile(everyKey());
  confirm();
  for (const auto& entry : everyKey()) {
    EXPECT_EQ(phone.serviceValue(std::string(entry.key())), std::nullopt) << entry.key();
  }
  phone.pass(10);
  EXPECT_EQ(phone.fileBytes(), std::nullopt);
}

TEST_F(Reset, LeavesOtherDomainsAlone) {
  phone.putFile(everyKey(), plist::Form::Xml, "org.example.other");
  confirm();
  phone.pass(10);
  EXPECT_EQ(phone.file("org.example.other"), everyKey());
}

TEST_F(Reset, TurnsTheMasterSwitchOn) {
  phone.putFile(everyKey());
  phone.reopen();
  ASSERT_FALSE(phone.switchIsOn());
  confirm();
  phone.pass(10);
  EXPECT_TRUE(phone.switchIsOn());
}

TEST_F(Reset, MakesTheWelcomeScreenDueAgain) {
  phone.setDevice({{}, "14.3", {}});
  phone.putFile(everyKey());
  phone.reopen();
  ASSERT_FALSE(phone.welcome());
  confirm();
  phone.pass(10);
  EXPECT_TRUE(phone.welcome());
}

TEST_F(Reset, PutsEveryRowBackToItsDefault) {
  phone.putFile(everyKey());
  confirm();
  phone.pass(10);
  phone.tap("Clock");
  EXPECT_EQ(phone.shown("clockDigitSize"), "75");
  EXPECT_EQ(phone.shown("clockEnabled"), "on");
}

TEST_F(Reset, WithoutAFileStillResprings) {
  confirm();
  EXPECT_EQ(phone.fileBytes(), std::nullopt);
  phone.pass(0.1);
  EXPECT_TRUE(phone.isRestarting());
  EXPECT_THAT(phone.reports(), IsEmpty());
  phone.pass(10);
  EXPECT_THAT(phone.titles(), ElementsAre("Quillmere"));
}

TEST_F(Reset, ShowsNoBlurAndPostsNoNotification) {
  phone.putFile(everyKey());
  confirm();
  EXPECT_EQ(phone.blur(), std::nullopt);
  phone.pass(0.09);
  EXPECT_EQ(phone.blur(), std::nullopt);
  phone.pass(10);
  EXPECT_THAT(phone.notifications(), IsEmpty());
}

TEST_F(Reset, GoesOnWhenThePageIsGone) {
  phone.putFile(everyKey());
  confirm();
  phone.reopen();
  phone.pass(0.1);
  EXPECT_EQ(phone.fileBytes(), std::nullopt);
  EXPECT_TRUE(phone.isRestarting());
}

}  // namespace
