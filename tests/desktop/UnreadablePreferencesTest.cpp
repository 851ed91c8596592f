#include <gtest/gtest.h>

#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSNumber.h"
#include "tests/desktop/BadFiles.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

namespace fs = std::filesystem;
using plist::Value;

class UnreadablePreferences : public PhoneTest, public testing::WithParamInterface<BadFile> {
 protected:
  UnreadablePreferences() {
    GetParam().make(file);
    before = portrait(file);
  }

  void set(const char* key, const std::optional<Value>& value) {
    phone->preferences.set(domain, key, value);
  }
  std::optional<Value> value(const char* key) { return phone->preferences.value(domain, key); }

  std::string before;
};

TEST_P(UnreadablePreferences, ReadAsNone) {
  EXPECT_FALSE(platform::NSDictionary::dictionaryWithContentsOfFile(path));
  EXPECT_EQ(value("key"), std::nullopt);
  EXPECT_EQ(portrait(file), before);
}

TEST_P(UnreadablePreferences, AreNotWrittenByADictionary) {
  auto dictionary = platform::NSMutableDictionary::initWithContentsOfFile(path);
  EXPECT_FALSE(dictionary);
  dictionary.setObject(platform::NSNumber::numberWithInt(1), "key");
  EXPECT_FALSE(dictionary.writeToFile(path, platform::Atomically::Yes));
  EXPECT_EQ(portrait(file), before);
  EXPECT_EQ(namesIn(file.parent_path()), std::vector<std::string>{file.filename()});
}

TEST_P(UnreadablePreferences, AreLeftAsTheyAreWhileTheServiceKeepsTheChange) {
  set("key", Value::integer(1));
  EXPECT_EQ(portrait(file), before);
  EXPECT_EQ(value("key"), Value::integer(1));
  EXPECT_EQ(portrait(file), before);
  EXPECT_TRUE(fs::is_regular_file(pendingFile));
}

TEST_P(UnreadablePreferences, AreReportedWithPathAndKey) {
  set("key", Value::integer(1));
  ASSERT_EQ(reports.size(), 1U);
  EXPECT_NE(reports[0].find(path), std::string::npos) << reports[0];
  EXPECT_NE(reports[0].find("key is kept in"), std::string::npos) << reports[0];
}

TEST_P(UnreadablePreferences, KeepChangesAcrossARestart) {
  set("key", Value::integer(1));
  restart();
  phone->preferences.settle(domain);
  EXPECT_EQ(value("key"), Value::integer(1));
  EXPECT_EQ(portrait(file), before);
}

TEST_P(UnreadablePreferences, GatherSeveralChanges) {
  set("a", Value::integer(1));
  set("b", Value::integer(2));
  set("a", Value::string("later"));
  set("b", std::nullopt);
  restart();
  EXPECT_EQ(value("a"), Value::string("later"));
  EXPECT_EQ(value("b"), std::nullopt);
}

TEST_P(UnreadablePreferences, TakeTheChangesOnceTheyAreReadable) {
  set("changed", Value::integer(2));
  set("removed", std::nullopt);
  fs::remove_all(file);
  plist::Dictionary good;
  for (const char* key : {"changed", "removed", "other"}) good.set(key, Value::integer(1));
  writeBytes(file, plist::write(Value(good), plist::Form::Xml).value());
  restart();
  phone->preferences.settle(domain);

  plist::Dictionary merged;
  merged.set("changed", Value::integer(2));
  merged.set("other", Value::integer(1));
  EXPECT_EQ(stored().root, Value(merged));
  EXPECT_EQ(stored().form, plist::Form::Xml);
  EXPECT_FALSE(fs::exists(pendingFile));
}

TEST_P(UnreadablePreferences, TakeTheChangesOnceTheyAreGone) {
  set("key", Value::integer(2));
  fs::remove_all(file);
  phone->preferences.settle(domain);
  EXPECT_EQ(stored().form, plist::Form::Binary);
  EXPECT_EQ(stored().root.dictionary()->find("key")->integer(), 2);
  EXPECT_FALSE(fs::exists(pendingFile));
}

INSTANTIATE_TEST_SUITE_P(PreferencesService, UnreadablePreferences, testing::ValuesIn(badFiles()),
                         [](const auto& test) { return test.param.name; });

class TruncatedPreferences : public PhoneTest, public testing::WithParamInterface<plist::Form> {};

TEST_P(TruncatedPreferences, AreLeftAsTheyAreAtEveryLength) {
  plist::Dictionary dictionary;
  dictionary.set("text", Value::string("né"));
  dictionary.set("number", Value::integer(-20));
  std::string whole = plist::write(Value(dictionary), GetParam()).value();
  while (whole.back() == '\n') whole.pop_back();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    SCOPED_TRACE(length);
    writeBytes(file, whole.substr(0, length));
    phone->preferences.set(domain, "number", Value::integer(static_cast<int>(length)));
    EXPECT_EQ(bytesOf(file), whole.substr(0, length));
    EXPECT_EQ(phone->preferences.value(domain, "number"), Value::integer(static_cast<int>(length)));
  }
  writeBytes(file, whole);
  EXPECT_EQ(phone->preferences.value(domain, "text"), Value::string("né"));
  EXPECT_EQ(phone->preferences.value(domain, "number"),
            Value::integer(static_cast<int>(whole.size() - 1)));
}

INSTANTIATE_TEST_SUITE_P(PreferencesService, TruncatedPreferences,
                         testing::Values(plist::Form::Xml, plist::Form::Binary),
                         [](const auto& test) {
                           return test.param == plist::Form::Xml ? "Xml" : "Binary";
                         });

}  // namespace
}  // namespace desktop_tests
