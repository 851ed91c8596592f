#include <gtest/gtest.h>

#include "platform/Cephei/HBPreferences.h"
#include "platform/Foundation/NSNumber.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using plist::Form;
using plist::Value;

class PreferencesServiceTest : public PhoneTest {
 protected:
  void set(const char* key, const std::optional<Value>& value) {
    phone->preferences.set(domain, key, value);
  }
  std::optional<Value> value(const char* key) { return phone->preferences.value(domain, key); }
};

TEST_F(PreferencesServiceTest, AMissingDomainHasNoValues) {
  EXPECT_EQ(value("key"), std::nullopt);
  EXPECT_EQ(reports, std::vector<std::string>{});
}

TEST_F(PreferencesServiceTest, AskingForAValueMakesNoFile) {
  value("key");
  EXPECT_EQ(namesIn(file.parent_path()), std::vector<std::string>{});
}

TEST_F(PreferencesServiceTest, MakesANewFileInBinaryForm) {
  set("key", Value::integer(1));
  EXPECT_EQ(stored().form, Form::Binary);
  EXPECT_EQ(value("key"), Value::integer(1));
  EXPECT_EQ(namesIn(file.parent_path()), std::vector<std::string>{file.filename()});
}

TEST_F(PreferencesServiceTest, KeepsTheFormOfAnXmlFile) {
  storeOne("other", 5, Form::Xml);
  set("key", Value(true));
  EXPECT_EQ(stored().form, Form::Xml);
  EXPECT_EQ(value("other"), Value::integer(5));
}

TEST_F(PreferencesServiceTest, KeepsTheFormOfABinaryFile) {
  storeOne("other", 5, Form::Binary);
  set("key", Value(true));
  EXPECT_EQ(stored().form, Form::Binary);
}

TEST_F(PreferencesServiceTest, TurnsToBinaryWhereXmlCannotCarryTheValue) {
  storeOne("other", 5, Form::Xml);
  set("key", Value::date(0.1));
  EXPECT_EQ(stored().form, Form::Binary);
  EXPECT_EQ(value("key"), Value::date(0.1));
  EXPECT_EQ(value("other"), Value::integer(5));
}

TEST_F(PreferencesServiceTest, KnowsARealInAnXmlFileAgainInEitherWidth) {
  set("key", Value::real(76.0));
  writeBytes(file, plist::write(stored().root, Form::Xml).value());
  const std::string before = portrait(file);
  set("key", Value::real(76.0F));
  EXPECT_EQ(portrait(file), before);
}

TEST_F(PreferencesServiceTest, RemovesAKey) {
  storeOne("key", 5);
  set("key", std::nullopt);
  EXPECT_EQ(value("key"), std::nullopt);
  EXPECT_TRUE(stored().root.dictionary()->empty());
}

TEST_F(PreferencesServiceTest, DoesNotWriteAValueThatIsThereAlready) {
  storeOne("key", 5);
  const std::string before = portrait(file);
  set("key", Value::integer(5));
  EXPECT_EQ(portrait(file), before);
}

TEST_F(PreferencesServiceTest, DoesNotWriteTheRemovalOfAKeyThatIsNotThere) {
  storeOne("other", 5);
  const std::string before = portrait(file);
  set("key", std::nullopt);
  EXPECT_EQ(portrait(file), before);
}

TEST_F(PreferencesServiceTest, RemovingFromAMissingDomainMakesNoFile) {
  set("key", std::nullopt);
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(PreferencesServiceTest, WritesAValueOfAnotherTypeEvenIfTheNumberIsTheSame) {
  storeOne("key", 1);
  set("key", Value(true));
  EXPECT_EQ(value("key"), Value(true));
}

TEST_F(PreferencesServiceTest, SeesAtOnceWhatOthersWrite) {
  set("key", Value::integer(1));
  storeOne("key", 2);
  EXPECT_EQ(value("key"), Value::integer(2));
}

TEST_F(PreferencesServiceTest, KeepsDomainsApart) {
  set("key", Value::integer(1));
  phone->preferences.set("com.example.other", "key", Value::integer(2));
  EXPECT_EQ(value("key"), Value::integer(1));
  EXPECT_EQ(phone->preferences.value("com.example.other", "key"), Value::integer(2));
}

TEST_F(PreferencesServiceTest, SurvivesARestart) {
  set("key", Value::string("kept"));
  restart();
  EXPECT_EQ(value("key"), Value::string("kept"));
}

TEST_F(PreferencesServiceTest, ReportsWhatTheDiskRefused) {
  std::filesystem::permissions(file.parent_path(), std::filesystem::perms::owner_exec);
  EXPECT_NO_THROW(set("key", Value(true)));
  EXPECT_TRUE(reported("key was not stored"));
}

TEST_F(PreferencesServiceTest, OfARepeatedKeyTheLastCountsInXml) {
  writeBytes(file,
             "<plist version=\"1.0\"><dict><key>key</key><integer>1</integer>"
             "<key>key</key><integer>2</integer></dict></plist>");
  EXPECT_EQ(value("key"), Value::integer(2));
  set("key", Value::integer(3));
  EXPECT_EQ(value("key"), Value::integer(3));
  EXPECT_EQ(bytesOf(file).find("<integer>1<"), std::string::npos);
}

TEST_F(PreferencesServiceTest, OfARepeatedKeyTheFirstCountsInBinary) {
  // A dictionary that names one and the same key twice, with the integers 1 and 2.
  const std::string objects("bplist00\xd2\x01\x01\x02\x03\x51k\x10\x01\x10\x02", 19);
  const std::string offsets("\x08\x0d\x0f\x11", 4);
  const std::string trailer = std::string(6, '\0') + std::string("\x01\x01", 2) +
                              std::string(7, '\0') + '\x04' + std::string(8, '\0') +
                              std::string(7, '\0') + '\x13';
  writeBytes(file, objects + offsets + trailer);
  EXPECT_EQ(value("k"), Value::integer(1));
}

TEST_F(PreferencesServiceTest, TheBundlesHandleStoresThere) {
  auto preferences = platform::HBPreferences::initWithIdentifier(domain);
  preferences.setObject(platform::NSNumber::numberWithInt(7), "key");
  EXPECT_EQ(value("key"), Value::integer(7));
}

TEST_F(PreferencesServiceTest, TheBundlesHandleRemovesForNone) {
  storeOne("key", 7);
  platform::HBPreferences::initWithIdentifier(domain).setObject(platform::Object(), "key");
  EXPECT_EQ(value("key"), std::nullopt);
}

}  // namespace
}  // namespace desktop_tests
