#include "tests/settings/PhoneScreenTest.h"

namespace settings_tests {
namespace {

using nlohmann::json;
using plist::Value;

/// What the first page shows besides its rows: the bar's title view and switch, and its header.
class ChromeTest : public PhoneScreenTest {
 protected:
  json page() { return tree().at("page1"); }
  std::string knobId() { return page()["trailing"]; }
  json knob() { return node(page()["trailing"]); }
  json toggle(const json& on) { return {{"kind", "toggle"}, {"id", knobId()}, {"on", on}}; }
  json toggle(bool on, bool inside) {
    json message = toggle(on);
    message["inside"] = inside;
    return message;
  }

  json scrolling(const char* id, double y) { return {{"kind", "scroll"}, {"id", id}, {"y", y}}; }
  /// The alpha of the title's text and of the icon.
  std::pair<double, double> alphas() {
    const json title = node(page()["titleView"])["children"];
    return {node(title[0])["alpha"], node(title[1])["alpha"]};
  }
};

TEST_F(ChromeTest, TheBarShowsItsSwitch) {
  EXPECT_EQ(knob(), (json{{"kind", "barSwitch"},
                          {"label", "Quillmere"},
                          {"on", true},
                          {"tint", "#f69240ff"},
                          {"width", 53},
                          {"height", 33},
                          {"radius", 15.5},
                          {"borderWidth", 1},
                          {"borderColor", "#ffffffff"}}));
}

TEST_F(ChromeTest, ASwitchLetGoInsideIsStoredAndAsksForARespring) {
  touch(toggle(false, true));
  EXPECT_EQ(knob()["on"], false);
  EXPECT_EQ(stored("enabledSwitch"), Value(false));
  EXPECT_EQ(overlay()["kind"], "alert");
}

TEST_F(ChromeTest, ASwitchLetGoOutsideMovesAndNobodyIsTold) {
  touch(toggle(false, false));
  EXPECT_EQ(knob()["on"], false);
  EXPECT_EQ(stored("enabledSwitch"), std::nullopt);
  EXPECT_EQ(overlay(), nullptr);
  tap(clockRow);
  tap("page2.back");
  EXPECT_EQ(knob()["on"], true);
}

TEST_F(ChromeTest, ASwitchIsToldWhereTheFingerWasLifted) {
  EXPECT_EQ(refusal(toggle(false)), "there is no \"inside\"");
  json message = toggle(false);
  message["inside"] = 1;
  EXPECT_EQ(refusal(message), "\"inside\" is of the wrong type");
  EXPECT_EQ(refusal(toggle(0)), "\"on\" is of the wrong type");
  EXPECT_EQ(knob()["on"], true);
}

TEST_F(ChromeTest, ASwitchOfACoveredPageIsRefused) {
  const json message = toggle(false, true);
  tap(clockRow);
  EXPECT_NE(refusal(message), "");
  EXPECT_EQ(tree().at("page2")["trailing"], nullptr);
  EXPECT_EQ(stored("enabledSwitch"), std::nullopt);
}

TEST_F(ChromeTest, ASwitchBelowAnAlertIsRefused) {
  touch(toggle(false, true));
  EXPECT_EQ(refusal(toggle(true, true)), "that is covered");
  EXPECT_EQ(knob()["on"], false);
}

TEST_F(ChromeTest, TheHeaderIsAPictureAboveTheRows) {
  const json header = node(page()["header"]);
  EXPECT_EQ(header["kind"], "image");
  EXPECT_EQ(header["mode"], "center");
  EXPECT_EQ(header["imageWidth"], 120);
  EXPECT_EQ(header["imageHeight"], 120);
  EXPECT_EQ(header["height"], 130);
  EXPECT_TRUE(pictures.file(header["source"].get<std::string>()));
  tap(clockRow);
  EXPECT_EQ(tree().at("page2")["header"], nullptr);
}

TEST_F(ChromeTest, ScrollingBringsTheIconAndBackTheTitle) {
  EXPECT_EQ(page()["offset"], 0);
  EXPECT_EQ(alphas(), std::pair(1.0, 0.0));
  touch(scrolling("page1", 60.5));
  EXPECT_EQ(page()["offset"], 60.5);
  EXPECT_EQ(alphas(), std::pair(0.0, 1.0));
  EXPECT_EQ(node(node(page()["titleView"])["children"][0])["fade"], 0.2);
  touch(scrolling("page1", -30));
  EXPECT_EQ(alphas(), std::pair(1.0, 0.0));
}

TEST_F(ChromeTest, OnlyThePageOnTopScrolls) {
  for (const char* id : {"", "window", "page2", "page1.group0"}) {
    EXPECT_EQ(refusal(scrolling(id, 100)), std::string(id) + " does not scroll");
  }
  EXPECT_EQ(refusal(json{{"kind", "scroll"}, {"id", "page1"}, {"y", "100"}}),
            "\"y\" is of the wrong type");
  tap(clockRow);
  EXPECT_EQ(tree().at("page2")["offset"], nullptr);
  EXPECT_EQ(refusal(scrolling("page1", 100)), "page1 does not scroll");
  tap("page2.back");
  EXPECT_EQ(alphas(), std::pair(1.0, 0.0));
}

}  // namespace
}  // namespace settings_tests
