#include <gtest/gtest.h>

#include "desktop/Cephei/PendingChanges.h"
#include "desktop/Foundation/Values.h"
#include "platform/Cephei/HBPreferences.h"
#include "tests/desktop/BadFiles.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

namespace fs = std::filesystem;
using desktop::PendingChanges;
using platform::HBPreferences;
using plist::Form;
using plist::Value;

class ClearedPreferences : public PhoneTest {
 protected:
  void clear() { HBPreferences::initWithIdentifier(domain).removeAllObjects(); }
  void set(const char* key, const std::optional<Value>& value) {
    phone->preferences.set(domain, key, value);
  }
  std::optional<Value> value(const char* key) { return phone->preferences.value(domain, key); }
};

TEST_F(ClearedPreferences, HaveAnEmptyFileOfTheSameForm) {
  for (const Form form : {Form::Xml, Form::Binary}) {
    storeOne("key", 5, form);
    clear();
    EXPECT_TRUE(stored().root.dictionary()->empty());
    EXPECT_EQ(stored().form, form);
  }
  EXPECT_EQ(namesIn(file.parent_path()), std::vector<std::string>{file.filename()});
}

TEST_F(ClearedPreferences, GetNoFileWhenTheyHadNone) {
  clear();
  EXPECT_TRUE(namesIn(file.parent_path()).empty());
  EXPECT_TRUE(reports.empty());
}

TEST_F(ClearedPreferences, AreNotWrittenAgain) {
  storeOne("key", 5);
  clear();
  const std::string before = portrait(file);
  clear();
  EXPECT_EQ(portrait(file), before);
}

TEST_F(ClearedPreferences, LoseTheChangesThatWereKeptBeside) {
  writeBytes(file, "bad");
  set("kept", Value(true));
  storeOne("key", 5);
  clear();
  EXPECT_TRUE(stored().root.dictionary()->empty());
  EXPECT_FALSE(fs::exists(pendingFile));
}

TEST_F(ClearedPreferences, AreReportedWhenTheDiskRefuses) {
  storeOne("key", 5);
  fs::permissions(file.parent_path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_NO_THROW(clear());
  EXPECT_TRUE(reported("was not cleared"));
  EXPECT_EQ(value("key"), Value::integer(5));
}

TEST_F(ClearedPreferences, AnswerTheHandleLikeTheService) {
  storeOne("key", 5);
  const auto preferences = HBPreferences::initWithIdentifier(domain);
  EXPECT_EQ(desktop::unbox(preferences.objectForKey("key")), Value::integer(5));
  EXPECT_FALSE(preferences.objectForKey("missing"));
  EXPECT_FALSE(preferences.objectForKey(platform::NSString()));
  EXPECT_FALSE(HBPreferences().objectForKey("key"));
  HBPreferences().removeAllObjects();
  EXPECT_EQ(value("key"), Value::integer(5));
  clear();
  EXPECT_FALSE(preferences.objectForKey("key"));
}

class ClearedUnreadable : public ClearedPreferences, public testing::WithParamInterface<BadFile> {
 protected:
  ClearedUnreadable() {
    GetParam().make(file);
    before = portrait(file);
  }
  void storeTwo() {
    fs::remove_all(file);
    plist::Dictionary dictionary;
    dictionary.set("old", Value::integer(1));
    dictionary.set("new", Value::integer(1));
    writeBytes(file, plist::write(Value(dictionary), Form::Xml).value());
  }

  std::string before;
};

TEST_P(ClearedUnreadable, StayAsTheyAreWhileTheClearingIsKept) {
  clear();
  EXPECT_EQ(portrait(file), before);
  EXPECT_TRUE(fs::is_regular_file(pendingFile));
  ASSERT_EQ(reports.size(), 1U);
  EXPECT_NE(reports[0].find("the removal of all keys is kept in"), std::string::npos);
}

TEST_P(ClearedUnreadable, AreClearedOnceTheyAreReadable) {
  set("old", Value::integer(2));
  clear();
  set("new", Value::integer(2));
  storeTwo();
  restart();
  EXPECT_EQ(value("old"), std::nullopt);
  EXPECT_EQ(value("new"), Value::integer(2));
  EXPECT_EQ(stored().root.dictionary()->size(), 1U);
  EXPECT_FALSE(fs::exists(pendingFile));
}

TEST_P(ClearedUnreadable, AreNotMadeAnewOnceTheyAreGone) {
  clear();
  fs::remove_all(file);
  phone->preferences.settle(domain);
  EXPECT_TRUE(namesIn(file.parent_path()).empty());
}

TEST_P(ClearedUnreadable, AreReportedWhenTheClearingCannotBeKept) {
  writeBytes(pendingFile, "bad");
  clear();
  EXPECT_TRUE(reported("was not cleared"));
  EXPECT_EQ(portrait(file), before);
  EXPECT_EQ(bytesOf(pendingFile), "bad");
}

INSTANTIATE_TEST_SUITE_P(PreferencesService, ClearedUnreadable, testing::ValuesIn(badFiles()),
                         [](const auto& test) { return test.param.name; });

TEST(ClearedPendingChanges, AreNotEmptyAndComeBack) {
  PendingChanges changes;
  changes.add("before", Value(true));
  changes.clear();
  EXPECT_FALSE(changes.empty());
  EXPECT_TRUE(changes.set.empty());
  changes.add("after", Value(true));
  const auto back = PendingChanges::fromDictionary(changes.toDictionary());
  ASSERT_TRUE(back);
  EXPECT_TRUE(back->cleared);
  EXPECT_TRUE(back->set.contains("after"));
}

TEST(ClearedPendingChanges, AreReadFromFilesThatKnowNoClearing) {
  plist::Dictionary older = PendingChanges{false, {}, {}}.toDictionary();
  older.erase("cleared");
  const auto changes = PendingChanges::fromDictionary(older);
  ASSERT_TRUE(changes);
  EXPECT_FALSE(changes->cleared);
  older.set("cleared", Value::string("yes"));
  EXPECT_FALSE(PendingChanges::fromDictionary(older));
}

}  // namespace
}  // namespace desktop_tests
