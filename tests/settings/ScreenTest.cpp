#include <set>

#include "tests/settings/PhoneScreenTest.h"

namespace settings_tests {
namespace {

using nlohmann::json;

class ScreenTest : public PhoneScreenTest {
 protected:
  /// Opens that page of the first page and gives its tree.
  settings::Tree opened(const char* row) {
    tap(row);
    return tree();
  }

  static json parsed(const char* text) { return json::parse(text); }
};

TEST_F(ScreenTest, ShowsTheQuickActionsPageExactly) {
  const settings::Tree expected = parsed(R"({
    "window": {"kind": "window", "children": ["page1", "page2"], "overlay": null,
               "banner": null},
    "page1": {"kind": "page", "title": "Quillmere"},
    "page2": {"kind": "page", "title": "Quick Actions", "back": "page2.back", "titleView": null,
      "trailing": null, "header": null, "covers": [], "offset": null,
      "style": {"translucent": true, "tint": "#f69240ff", "bar": "#f69240ff", "barText": "#ffffffff",
                "barTint": "#ffffffff", "text": "#f69240ff", "separator": "#00000000"},
      "children": ["page2.group0", "page2.group1", "page2.group2"]},
    "page2.back": {"kind": "back", "label": "Quillmere"},
    "page2.group0": {"kind": "group", "title": "Quick Actions Buttons",
      "footer": "• Changes require a respring to be applied",
      "children": ["page2.group0.row0", "page2.group0.row1"]},
    "page2.group0.row0": {"kind": "switch", "label": "Flash Animation", "key": "flashEnabled",
      "on": true},
    "page2.group0.row1": {"kind": "switch", "label": "Camera Animation", "key": "cameraEnabled",
      "on": true},
    "page2.group1": {"kind": "group", "title": "Loop Animation", "footer": "• Default = YES",
      "children": ["page2.group1.row0"]},
    "page2.group1.row0": {"kind": "switch", "label": "Loop Animation",
      "key": "quickActionsLoopAnimation", "on": true},
    "page2.group2": {"kind": "group", "title": "Size", "footer": "• Default = 75",
      "children": ["page2.group2.row0"]},
    "page2.group2.row0": {"kind": "slider", "label": "Size", "key": "quickActionsSize",
      "value": 75.0, "min": 1.0, "max": 200.0, "step": 1.0, "showValue": true}
  })")
                                      .get<settings::Tree>();
  EXPECT_EQ(json(opened(quickActionsRow)), json(expected));
}

TEST_F(ScreenTest, ShowsTheFirstPageWithoutABackButton) {
  const settings::Tree first = tree();
  EXPECT_EQ(first.at("window")["children"], json({"page1"}));
  EXPECT_EQ(first.at("page1")["title"], "Quillmere");
  EXPECT_EQ(first.at("page1")["back"], nullptr);
  EXPECT_FALSE(first.contains("page1.back"));
}

TEST_F(ScreenTest, ShowsTheRowsOfTheFirstPage) {
  const settings::Tree first = tree();
  EXPECT_EQ(first.at("page1.group0.row0"), parsed(R"({"kind": "link", "label": "Lotties"})"));
  EXPECT_EQ(first.at(clockRow), parsed(R"({"kind": "link", "label": "Clock"})"));
  EXPECT_EQ(first.at("page1.group1.row0"), parsed(R"({"kind": "button", "label": "Respring"})"));
  EXPECT_FALSE(first.at("page1.group3").contains("footer"));
}

TEST_F(ScreenTest, ShowsTheCredits) {
  EXPECT_EQ(tree().at("page1.group4.row0"), parsed(R"({
    "kind": "credits", "label": "", "height": 120.0, "tint": "#f69240ff", "people": [
      {"name": "orvalen", "detail": "Twitter", "url": "https://twitter.com/orvalen"},
      {"name": "orvalen", "detail": "Reddit", "url": "https://www.reddit.com/user/orvalen"},
      {"name": "Orvalen Design", "detail": "Designer", "image": "bundle/Designer@3x.png",
       "url": "https://twitter.com/orvalendesign"}]})"));
}

TEST_F(ScreenTest, ShowsTheColorPage) {
  const settings::Tree page = opened(colorRow);
  EXPECT_EQ(page.at("page2.group0.row0"), parsed(R"({"kind": "segment", "label": "Color Mode",
    "key": "colorMode", "titles": ["Default", "Custom Color"], "selected": 0})"));
  EXPECT_EQ(page.at("page2.group1.row0"), parsed(R"({"kind": "color", "label": "Custom Color",
    "key": "tintColor", "color": "#f69240ff", "alpha": true})"));
}

TEST_F(ScreenTest, ShowsTheBoundsOfTheClockPage) {
  const settings::Tree page = opened(clockRow);
  EXPECT_EQ(page.at("page2")["children"].size(), 6U);
  EXPECT_EQ(page.at("page2.group4.row0"), parsed(R"({"kind": "slider", "label": "Digits Spacing",
    "key": "clockDigitsSpacing", "value": -20.0, "min": -100.0, "max": 100.0, "step": 1.0,
    "showValue": true})"));
}

TEST_F(ScreenTest, ShowsNoSegmentForAnUnknownStoredValue) {
  plist::Dictionary odd;
  odd.set("colorMode", plist::Value::string("odd"));
  phone.folder.replace(preferences, plist::writeBinary(plist::Value(odd)));
  EXPECT_EQ(opened(colorRow).at("page2.group0.row0")["selected"], -1);
}

TEST_F(ScreenTest, ShowsALineOfTextWhereTheCellsLibraryIsMissing) {
  phone.missingClasses.insert("OrvalenTripleCell");
  open();
  EXPECT_EQ(tree().at("page2.group4.row0")["kind"], "text");
}

/// What a node names besides its children.
std::set<std::string> namedBy(const json& node) {
  std::set<std::string> named;
  for (const char* property : {"back", "titleView", "trailing", "header", "overlay"}) {
    if (node.contains(property) && node[property].is_string()) named.insert(node[property]);
  }
  for (const char* property : {"children", "covers"}) {
    for (const auto& id : node.value(property, json::array())) named.insert(id);
  }
  return named;
}

TEST_F(ScreenTest, EveryNodeIsNamedOnceAndEveryNamedOneIsThere) {
  for (const char* row : {"", lottiesRow, clockRow, quickActionsRow, colorRow}) {
    if (*row) tap(row);
    const settings::Tree page = tree();
    std::multiset<std::string> named{"window"};
    std::multiset<std::string> there;
    for (const auto& [id, node] : page) {
      there.insert(id);
      named.merge(namedBy(node));
    }
    EXPECT_EQ(named, there);
    if (*row) tap(page.at(page.at("window")["children"].back())["back"]);
  }
}

TEST_F(ScreenTest, ABrokenListResourceLeavesAnEmptyPageAndAReport) {
  phone.folder.replace("/Library/PreferenceBundles/Quillmere.bundle/Root.plist", "broken");
  open();
  EXPECT_EQ(tree().at("page2")["children"], json::array());
  ASSERT_FALSE(reports.empty());
  EXPECT_NE(reports[0].find("Root.plist cannot be read"), std::string::npos);
}

}  // namespace
}  // namespace settings_tests
