#include <gtest/gtest.h>
#include <sys/stat.h>

#include "desktop/Cephei/PendingChanges.h"
#include "tests/desktop/BadFiles.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

namespace fs = std::filesystem;
using desktop::PendingChanges;
using plist::Value;

class PendingFile : public PhoneTest {
 protected:
  void set(const char* key, const std::optional<Value>& value) {
    phone->preferences.set(domain, key, value);
  }
  std::optional<Value> value(const char* key) { return phone->preferences.value(domain, key); }
};

TEST_F(PendingFile, IsMergedWhenAValueIsAskedFor) {
  writeBytes(file, "bad");
  set("key", Value::integer(2));
  storeOne("key", 1);
  EXPECT_EQ(value("key"), Value::integer(2));
  EXPECT_EQ(stored().root.dictionary()->find("key")->integer(), 2);
  EXPECT_FALSE(fs::exists(pendingFile));
}

TEST_F(PendingFile, IsMergedBeforeTheNextChange) {
  writeBytes(file, "bad");
  set("first", Value::integer(1));
  storeOne("other", 5);
  set("second", Value::integer(2));
  plist::Dictionary all;
  all.set("other", Value::integer(5));
  all.set("first", Value::integer(1));
  all.set("second", Value::integer(2));
  EXPECT_EQ(stored().root, Value(all));
  EXPECT_FALSE(fs::exists(pendingFile));
  EXPECT_TRUE(reported("took the changes"));
}

TEST_F(PendingFile, DoesNotComeBackAfterItsMerge) {
  writeBytes(file, "bad");
  set("key", Value::integer(2));
  storeOne("key", 1);
  phone->preferences.settle(domain);
  storeOne("key", 3);
  EXPECT_EQ(value("key"), Value::integer(3));
}

TEST_F(PendingFile, KeepsEveryTypeExactly) {
  writeBytes(file, "bad");
  const std::vector<Value> values = {Value(true),      Value::integer(1), Value::real(1.0F),
                                     Value::real(1.0), Value::date(0.5),  Value::data("\xff\0")};
  for (const Value& each : values) {
    set("key", each);
    EXPECT_EQ(value("key"), each);
  }
}

TEST_F(PendingFile, StillCountsWhenTheFolderTakesNoFiles) {
  writeBytes(file, "bad");
  set("key", Value::integer(2));
  storeOne("key", 1);
  fs::permissions(file.parent_path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(value("key"), Value::integer(2));
  EXPECT_TRUE(reported("did not take the changes"));
}

TEST_F(PendingFile, StaysWhenTheFolderTakesNoFiles) {
  writeBytes(file, "bad");
  set("key", Value::integer(2));
  storeOne("key", 1);
  const std::string before = portrait(pendingFile);
  fs::permissions(file.parent_path(), fs::perms::owner_read | fs::perms::owner_exec);
  set("key", Value::integer(3));
  EXPECT_TRUE(reported("key was not stored"));
  EXPECT_EQ(portrait(pendingFile), before);
}

TEST_F(PendingFile, OfEveryDomainIsMergedAtTheStart) {
  for (const char* each : {"com.example.addon", "com.example.other"}) {
    const fs::path plist = file.parent_path() / (std::string(each) + ".plist");
    writeBytes(plist, "bad");
    phone->preferences.set(each, "key", Value(true));
    fs::remove(plist);
  }
  restart();
  phone->preferences.settleAll();
  EXPECT_EQ(namesIn(file.parent_path()),
            (std::vector<std::string>{"com.example.addon.plist", "com.example.other.plist"}));
}

TEST_F(PendingFile, StaysAtTheStartBesideABadFile) {
  writeBytes(file, "bad");
  set("key", Value(true));
  const std::string before = portrait(pendingFile);
  restart();
  phone->preferences.settleAll();
  EXPECT_EQ(portrait(pendingFile), before);
}

/// In the place of the kept changes stands something that holds none.
class CorruptPendingFile : public PendingFile, public testing::WithParamInterface<BadFile> {
 protected:
  CorruptPendingFile() {
    GetParam().make(pendingFile);
    before = portrait(pendingFile);
  }
  ~CorruptPendingFile() override { EXPECT_EQ(portrait(pendingFile), before); }

  std::string before;
};

TEST_P(CorruptPendingFile, IsReportedAndLeftAsItIs) {
  phone->preferences.settle(domain);
  EXPECT_TRUE(reported(std::string(path) + ".pending"));
}

TEST_P(CorruptPendingFile, DoesNotHideWhatTheFileHolds) {
  storeOne("key", 5);
  EXPECT_EQ(value("key"), Value::integer(5));
}

TEST_P(CorruptPendingFile, DoesNotKeepTheFileFromTakingChanges) {
  storeOne("key", 5);
  set("key", Value::integer(6));
  EXPECT_EQ(stored().root.dictionary()->find("key")->integer(), 6);
}

TEST_P(CorruptPendingFile, BesideABadFileLosesAChangeAloud) {
  writeBytes(file, "bad");
  set("key", Value::integer(6));
  EXPECT_TRUE(reported("key was not stored"));
  EXPECT_EQ(bytesOf(file), "bad");
}

constexpr const char* otherDictionary = "<plist><dict><key>a</key><true/></dict></plist>";

std::vector<BadFile> noPendingChanges() {
  std::vector<BadFile> files = badFiles();
  files.push_back(
      {"AnotherDictionary", [](const fs::path& file) { writeBytes(file, otherDictionary); }});
  return files;
}

INSTANTIATE_TEST_SUITE_P(PreferencesService, CorruptPendingFile,
                         testing::ValuesIn(noPendingChanges()),
                         [](const auto& test) { return test.param.name; });

TEST(PendingChangesTest, ALaterRemovalUndoesAChange) {
  PendingChanges changes;
  changes.add("key", Value(true));
  changes.add("key", std::nullopt);
  plist::Dictionary dictionary;
  dictionary.set("key", Value(false));
  changes.applyTo(dictionary);
  EXPECT_TRUE(dictionary.empty());
}

TEST(PendingChangesTest, ALaterChangeUndoesARemoval) {
  PendingChanges changes;
  changes.add("key", std::nullopt);
  changes.add("key", Value(true));
  plist::Dictionary dictionary;
  changes.applyTo(dictionary);
  ASSERT_TRUE(dictionary.find("key"));
  EXPECT_EQ(*dictionary.find("key"), Value(true));
}

TEST(PendingChangesTest, ComeBackFromTheirDictionary) {
  PendingChanges changes;
  changes.add("set", Value::integer(1));
  changes.add("removed", std::nullopt);
  const auto back = PendingChanges::fromDictionary(changes.toDictionary());
  ASSERT_TRUE(back);
  EXPECT_EQ(back->set, changes.set);
  EXPECT_TRUE(back->removed.contains("removed"));
  EXPECT_FALSE(back->empty());
}

}  // namespace
}  // namespace desktop_tests
