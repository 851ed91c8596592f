#include <gtest/gtest.h>

#include "platform/Cephei/HBAppearanceSettings.h"
#include "platform/Cephei/HBPreferences.h"
#include "platform/CoreFoundation/CFNotificationCenter.h"
#include "platform/Foundation/NSNumber.h"
#include "platform/Preferences/PSSpecifier.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using platform::Object;

/// Messages to none, of the classes that have no test file of their own.
class None : public PhoneTest {};

TEST_F(None, AppearanceTakesNothing) {
  platform::HBAppearanceSettings none;
  const auto white = platform::UIColor::whiteColor();
  none.setTintColor(white);
  none.setNavigationBarTitleColor(white);
  none.setNavigationBarTintColor(white);
  none.setTableViewCellSeparatorColor(white);
  none.setNavigationBarBackgroundColor(white);
  none.setTableViewCellTextColor(white);
  none.setTranslucentNavigationBar(true);
  none.setLargeTitleStyle(platform::HBAppearanceSettingsLargeTitleStyle::Always);
  EXPECT_FALSE(none);
}

TEST_F(None, PreferencesStoreNothing) {
  platform::HBPreferences().setObject(platform::NSNumber::numberWithInt(1), "key");
  EXPECT_EQ(namesIn(file.parent_path()), std::vector<std::string>{});
}

TEST_F(None, SpecifierTakesAndAnswersNothing) {
  platform::PSSpecifier none;
  none.setProperty(platform::NSString("value"), "key");
  none.setProperty(Object(), "key");
  none.setValues(platform::NSArray(), platform::NSArray());
  EXPECT_FALSE(none.propertyForKey("key"));
}

TEST_F(None, CenterPostsNothing) {
  std::vector<std::string> posted;
  phone->notifications.observe([&](const std::string& name) { posted.push_back(name); });
  platform::CFNotificationCenterPostNotification(platform::CFNotificationCenter(), "name", Object(),
                                                 Object(), platform::DeliverImmediately::Yes);
  EXPECT_TRUE(posted.empty());
  platform::CFNotificationCenterPostNotification(
      platform::CFNotificationCenterGetDarwinNotifyCenter(), "name", Object(), Object(),
      platform::DeliverImmediately::Yes);
  EXPECT_EQ(posted, std::vector<std::string>{"name"});
}

TEST_F(None, IsRecordedAsNoMessage) {
  phone->journal.start();
  platform::HBPreferences().setObject(platform::NSString("value"), "key");
  EXPECT_TRUE(phone->journal.lines().empty());
}

TEST_F(None, IsTheClassOfAnUnknownName) {
  EXPECT_FALSE(platform::NSClassFromString("NoSuchClass"));
  EXPECT_FALSE(platform::NSClassFromString(platform::NSString()));
  EXPECT_TRUE(platform::NSClassFromString("TestPage"));
}

TEST_F(None, IsTheSameAsNoneAndAsNothingElse) {
  EXPECT_TRUE(Object() == Object());
  EXPECT_FALSE(platform::NSString("") == Object());
}

TEST_F(None, HandlesOutliveEachOther) {
  Object copy;
  {
    const platform::NSString original("text");
    copy = original;
    copy = Object(copy);
  }
  EXPECT_TRUE(copy.isEqual(platform::NSString("text")));
  const Object moved = std::move(copy);
  EXPECT_TRUE(moved.isEqual(platform::NSString("text")));
}

}  // namespace
}  // namespace desktop_tests
