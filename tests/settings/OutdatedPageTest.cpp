#include <filesystem>
#include <fstream>

#include "tests/settings/PhoneScreenTest.h"

namespace settings_tests {
namespace {

using nlohmann::json;
using plist::Value;

/// Somebody else changes what a page holds while it is open.
class OutdatedPageTest : public PhoneScreenTest {
 protected:
  static constexpr const char* words =
      "what is stored is not what this page shows any more: open it again";

  void write(const plist::Dictionary& dictionary) {
    phone.folder.replace(preferences, plist::writeBinary(Value(dictionary)));
  }
  void storeList(const std::vector<std::string>& names) {
    plist::Array list;
    for (const std::string& name : names) list.append(Value::string(name));
    plist::Dictionary dictionary;
    dictionary.set("enabledLotties", Value(std::move(list)));
    write(dictionary);
  }
  std::string disableFirst() { return refusal(json{{"kind", "tap"}, {"id", firstControl()}}); }
  std::string firstControl() {
    for (const auto& [id, shown] : tree()) {
      if (shown.value("kind", "") == "cell" && shown["section"] == 0 && shown["row"] == 0) {
        return shown["control"];
      }
    }
    return "";
  }
  std::vector<std::string> enabled() const {
    std::vector<std::string> names;
    const Value list = *stored("enabledLotties");
    for (const Value& each : *list.array()) names.emplace_back(*each.string());
    return names;
  }
};

TEST_F(OutdatedPageTest, IsLeftInsteadOfUndoingTheChange) {
  storeList({"Rain"});
  tap(lottiesRow);
  storeList({"Snow", "Rain"});
  EXPECT_EQ(disableFirst(), words);
  EXPECT_EQ(pages().pages().size(), 1U);
  EXPECT_EQ(enabled(), (std::vector<std::string>{"Snow", "Rain"}));
}

TEST_F(OutdatedPageTest, ShowsTheChangeWhenItIsOpenedAgain) {
  storeList({"Rain"});
  tap(lottiesRow);
  storeList({"Snow", "Rain"});
  disableFirst();
  tap(lottiesRow);
  EXPECT_EQ(disableFirst(), "");
}

TEST_F(OutdatedPageTest, MayStillBeLookedAt) {
  storeList({"Rain"});
  tap(lottiesRow);
  storeList({"Snow"});
  EXPECT_EQ(
      refusal(json{{"kind", "window"}, {"id", "page2"}, {"first", 0}, {"count", 5}}).find(words),
      std::string::npos);
  EXPECT_EQ(pages().pages().size(), 2U);
}

TEST_F(OutdatedPageTest, IsWhatCouldNotBeReadAndCanBeByNow) {
  storeList({"Rain"});
  const std::string whole = *phone.folder.read(preferences);
  phone.folder.replace(preferences, "bplist00 of which the disk gives back no more");
  tap(lottiesRow);
  phone.folder.replace(preferences, whole);
  EXPECT_EQ(disableFirst(), words);
  EXPECT_EQ(enabled(), std::vector<std::string>{"Rain"});
}

TEST_F(OutdatedPageTest, IsNoneWhileTheFileCannotBeRead) {
  phone.folder.replace(preferences, "no property list");
  tap(lottiesRow);
  EXPECT_NE(disableFirst(), words);
  EXPECT_EQ(pages().pages().size(), 2U);
}

TEST_F(OutdatedPageTest, IsNoneByItsOwnChanges) {
  storeList({"Rain"});
  tap(lottiesRow);
  EXPECT_EQ(disableFirst(), "");
  EXPECT_EQ(disableFirst(), "");
}

TEST_F(OutdatedPageTest, IsNoneBySettingsThatItDoesNotHold) {
  storeList({"Rain"});
  tap(lottiesRow);
  plist::Dictionary dictionary = *plist::read(*phone.folder.read(preferences)).root.dictionary();
  dictionary.set("enabledSwitch", Value(false));
  write(dictionary);
  EXPECT_EQ(disableFirst(), "");
}

TEST_F(OutdatedPageTest, IsLeftByItsBackButtonWithoutAWord) {
  storeList({"Rain"});
  tap(lottiesRow);
  storeList({"Snow"});
  EXPECT_EQ(refusal(json{{"kind", "tap"}, {"id", "page2.back"}}), "");
  EXPECT_EQ(pages().pages().size(), 1U);
  EXPECT_EQ(refusal(json{{"kind", "tap"}, {"id", clockRow}}), "");
}

TEST_F(OutdatedPageTest, HasNothingToDoWithTheBanner) {
  storeList({"Rain"});
  tap(lottiesRow);
  storeList({"Snow"});
  phone.banner = "It was not stored.";
  EXPECT_EQ(refusal(json{{"kind", "tap"}, {"id", "banner"}}), "");
  EXPECT_EQ(phone.banner, "");
  EXPECT_EQ(disableFirst(), words);
}

TEST_F(OutdatedPageTest, IsNoneOnceItWasLeft) {
  storeList({"Rain"});
  tap(lottiesRow);
  tap("page2.back");
  storeList({"Snow"});
  EXPECT_EQ(refusal(json{{"kind", "tap"}, {"id", clockRow}}), "");
}

}  // namespace
}  // namespace settings_tests
