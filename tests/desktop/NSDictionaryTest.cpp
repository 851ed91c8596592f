#include <gtest/gtest.h>

#include "desktop/Exception.h"
#include "desktop/Foundation/Values.h"
#include "platform/CoreFoundation/CFNotificationCenter.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSNumber.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using platform::Atomically;
using platform::NSDictionary;
using platform::NSMutableDictionary;
using platform::NSNumber;
using platform::NSString;
using platform::Object;

class NSDictionaryTest : public PhoneTest {
 protected:
  NSMutableDictionary load() const { return NSMutableDictionary::initWithContentsOfFile(path); }
};

TEST_F(NSDictionaryTest, IsNoneForAMissingFile) {
  EXPECT_FALSE(NSDictionary::dictionaryWithContentsOfFile(path));
  EXPECT_FALSE(load());
}

TEST_F(NSDictionaryTest, MissingFileIsNotCreated) {
  NSMutableDictionary none = load();
  none.setObject(NSNumber::numberWithInt(1), "key");
  EXPECT_FALSE(none.writeToFile(path, Atomically::Yes));
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(NSDictionaryTest, IsNoneForNoPath) {
  EXPECT_FALSE(NSDictionary::dictionaryWithContentsOfFile(NSString()));
}

TEST_F(NSDictionaryTest, AnswersNoneForAnAbsentKeyAndForNoKey) {
  storeOne("key", 1);
  EXPECT_FALSE(load().objectForKey("other"));
  EXPECT_FALSE(load().objectForKey(NSString()));
}

TEST_F(NSDictionaryTest, AnswersAStoredValue) {
  storeOne("key", 1);
  EXPECT_TRUE(load().objectForKey("key").isEqual(NSNumber::numberWithInt(1)));
}

TEST_F(NSDictionaryTest, RaisesOnAnObjectThatIsNone) {
  storeOne("key", 1);
  EXPECT_THROW(load().setObject(Object(), "key"), desktop::Exception);
}

TEST_F(NSDictionaryTest, RaisesOnAKeyThatIsNone) {
  storeOne("key", 1);
  EXPECT_THROW(load().setObject(NSNumber::numberWithInt(1), NSString()), desktop::Exception);
}

TEST_F(NSDictionaryTest, RaisesOnAnObjectThatNoPropertyListHolds) {
  storeOne("key", 1);
  EXPECT_THROW(load().setObject(platform::CFNotificationCenterGetDarwinNotifyCenter(), "key"),
               desktop::Exception);
}

TEST_F(NSDictionaryTest, WritesNothingBeforeItIsTold) {
  storeOne("key", 1);
  const std::string before = portrait(file);
  load().setObject(NSNumber::numberWithInt(2), "key");
  EXPECT_EQ(portrait(file), before);
}

TEST_F(NSDictionaryTest, WritesTheFormItWasReadFrom) {
  for (const plist::Form form : {plist::Form::Xml, plist::Form::Binary}) {
    storeOne("key", 1, form);
    NSMutableDictionary dictionary = load();
    dictionary.setObject(NSNumber::numberWithBool(true), "key");
    ASSERT_TRUE(dictionary.writeToFile(path, Atomically::Yes));
    EXPECT_EQ(stored().form, form);
    EXPECT_EQ(*stored().root.dictionary()->find("key"), plist::Value(true));
  }
}

TEST_F(NSDictionaryTest, AnswersFalseAndReportsWhenTheDiskRefuses) {
  storeOne("key", 1);
  const std::string before = portrait(file);
  NSMutableDictionary dictionary = load();
  dictionary.setObject(NSNumber::numberWithInt(2), "key");
  std::filesystem::permissions(file.parent_path(), std::filesystem::perms::owner_exec);
  EXPECT_FALSE(dictionary.writeToFile(path, Atomically::Yes));
  EXPECT_TRUE(reported("was not written"));
  EXPECT_EQ(portrait(file), before);
}

TEST_F(NSDictionaryTest, EqualContentIsEqualAndDescribed) {
  storeOne("key", 1);
  EXPECT_TRUE(load().isEqual(NSDictionary::dictionaryWithContentsOfFile(path)));
  EXPECT_FALSE(load() == load());
  EXPECT_EQ(desktop::description(load()), "{key = 1}");
}

TEST_F(NSDictionaryTest, NoneDoesNothingAndAnswersNothing) {
  NSMutableDictionary none;
  EXPECT_NO_THROW(none.setObject(Object(), NSString()));
  EXPECT_FALSE(none.objectForKey("key"));
  EXPECT_FALSE(none.writeToFile(path, Atomically::Yes));
}

}  // namespace
}  // namespace desktop_tests
