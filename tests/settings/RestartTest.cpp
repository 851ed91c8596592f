#include "tests/settings/PhoneScreenTest.h"

namespace settings_tests {
namespace {

using desktop::SpringBoard;
using nlohmann::json;

class RestartTest : public PhoneScreenTest {
 protected:
  /// Answers "Confirm" to the question that the row asks.
  void confirm() {
    tap("page1.group1.row0");
    tap(overlay()["actions"][0]["id"]);
  }
  /// Until the blur is there, and the phone restarts.
  void restart() {
    confirm();
    pass(std::chrono::seconds(1));
  }
  json covers() { return tree().at("page1")["covers"]; }
};

TEST_F(RestartTest, ABlurCoversThePageFirst) {
  EXPECT_EQ(covers(), json::array());
  confirm();
  ASSERT_EQ(covers().size(), 1U);
  EXPECT_EQ(node(covers()[0]),
            (json{{"kind", "blur"}, {"alpha", 1}, {"fade", 1}, {"children", json::array()}}));
}

TEST_F(RestartTest, WhatTheBlurCoversRefusesTouches) {
  confirm();
  EXPECT_NE(refusal(json{{"kind", "tap"}, {"id", clockRow}}), "");
  EXPECT_NE(refusal(json{{"kind", "scroll"}, {"id", "page1"}, {"y", 100}}), "");
  EXPECT_EQ(pages().pages().size(), 1U);
}

TEST_F(RestartTest, TheScreenIsDarkThenLockedThenNew) {
  restart();
  EXPECT_EQ(overlay(), (json{{"kind", "restart"}, {"phase", "dark"}}));
  EXPECT_EQ(tree().at("window")["children"], json::array());
  EXPECT_EQ(tree().size(), 2U);
  pass(SpringBoard::darkTime);
  EXPECT_EQ(overlay(), (json{{"kind", "restart"}, {"phase", "locked"}}));
  pass(SpringBoard::lockedTime);
  EXPECT_EQ(overlay(), nullptr);
  EXPECT_EQ(tree().at("window")["children"].size(), 1U);
  EXPECT_NE(tree().at("window")["children"], json({"page1"}));
}

TEST_F(RestartTest, NothingCanBeTouchedMeanwhile) {
  const std::string knob = tree().at("page1")["trailing"];
  restart();
  for (const auto phase : {SpringBoard::Phase::Dark, SpringBoard::Phase::Locked}) {
    ASSERT_EQ(phone.springBoard.phase(), phase);
    for (const json& message : std::initializer_list<json>{
             {{"kind", "tap"}, {"id", clockRow}},
             {{"kind", "tap"}, {"id", "restart"}},
             {{"kind", "toggle"}, {"id", knob}, {"on", false}, {"inside", true}},
             {{"kind", "slide"}, {"id", clockRow}, {"value", 1}},
             {{"kind", "type"}, {"id", clockRow}, {"text", "1"}},
             {{"kind", "select"}, {"id", clockRow}, {"index", 0}},
             {{"kind", "pick"}, {"id", clockRow}, {"color", "#000000ff"}},
             {{"kind", "scroll"}, {"id", "page1"}, {"y", 1}},
             {{"kind", "drag"}, {"id", clockRow}, {"section", 0}, {"row", 0}}}) {
      EXPECT_EQ(refusal(message), "the phone is restarting") << message;
    }
    EXPECT_NE(refusal(json{{"kind", "window"}, {"id", "view1"}, {"first", 0}, {"count", 1}}), "");
    pass(SpringBoard::darkTime);
  }
  EXPECT_EQ(stored("enabledSwitch"), std::nullopt);
}

TEST_F(RestartTest, TouchesOnWhatWasThereBeforeAreRefusedForGood) {
  const std::string knob = tree().at("page1")["trailing"];
  restart();
  pass(SpringBoard::darkTime + SpringBoard::lockedTime);
  EXPECT_NE(refusal(json{{"kind", "tap"}, {"id", clockRow}}), "");
  EXPECT_NE(refusal(json{{"kind", "toggle"}, {"id", knob}, {"on", false}, {"inside", true}}), "");
  EXPECT_EQ(pages().pages().size(), 1U);
}

TEST_F(RestartTest, WithoutItsLoaderEntryThePhoneStaysLockedAndSaysWhy) {
  phone.folder.remove("/Library/PreferenceLoader/Preferences/Quillmere.plist");
  restart();
  pass(SpringBoard::darkTime + SpringBoard::lockedTime);
  EXPECT_EQ(overlay()["phase"], "locked");
  EXPECT_EQ(refusal(json{{"kind", "tap"}, {"id", clockRow}}), "the phone is restarting");
  EXPECT_EQ(reports, std::vector<std::string>{
                         "prefs:root=Quillmere does not open, and is tried again: no entry in "
                         "/Library/PreferenceLoader/Preferences is labelled Quillmere"});
}

}  // namespace
}  // namespace settings_tests
