#include <algorithm>
#include <fstream>
#include <gmock/gmock.h>
#include <map>

#include "tests/support/program/SubCommands.h"

namespace program_tests {
namespace {

using nlohmann::json;

using ListTest = SubCommands;
using GetTest = SubCommands;

json rowIn(const json& rows, const std::string& key) {
  const auto found = std::ranges::find_if(rows, [&](const json& row) { return row["key"] == key; });
  return found == rows.end() ? json() : *found;
}

TEST_F(ListTest, ShowsEveryPageWithItsRowsInOrder) {
  EXPECT_EQ(said({"list"}),
            R"(Quillmere
  enabledSwitch              on           on, off                        default on

Clock
  clockEnabled               on           on, off                        default on
  clockLoopAnimation         on           on, off                        default on
  clockDigitSize             75           1 to 200                       default 75
  clockVerticalAlignment     0            -100 to 100                    default 0
  clockDigitsSpacing         -20          -100 to 100                    default -20
  colonHeight                50           1 to 200                       default 50

Quick Actions
  flashEnabled               on           on, off                        default on
  cameraEnabled              on           on, off                        default on
  quickActionsLoopAnimation  on           on, off                        default on
  quickActionsSize           75           1 to 200                       default 75

Color
  colorMode                  1 (Default)  1 (Default), 2 (Custom Color)  default 1 (Default)
  tintColor                  #f69240ff    #rrggbb or #rrggbbaa           default #f69240ff

Lotties
  enabledLotties             2 names      lotties enable, disable, move  default Clock, Nice Buttons
)");
}

TEST_F(ListTest, TellsProgramsWhatEachRowOffers) {
  const json rows = saidJson({"list", "--json"});
  EXPECT_EQ(rows.size(), 14U);
  EXPECT_EQ(rows[0], json({{"page", "Quillmere"},
                           {"key", "enabledSwitch"},
                           {"label", "Quillmere"},
                           {"kind", "switch"},
                           {"value", true},
                           {"default", true}}));
  EXPECT_EQ(rows.back(), json({{"page", "Lotties"},
                               {"key", "enabledLotties"},
                               {"label", "Lotties"},
                               {"kind", "list"},
                               {"value", {"Clock", "Nice Buttons"}},
                               {"default", {"Clock", "Nice Buttons"}}}));
  EXPECT_EQ(rowIn(rows, "clockVerticalAlignment"), json({{"page", "Clock"},
                                                         {"key", "clockVerticalAlignment"},
                                                         {"label", "Vertical Alignment"},
                                                         {"kind", "slider"},
                                                         {"value", 0},
                                                         {"default", 0},
                                                         {"min", -100},
                                                         {"max", 100},
                                                         {"step", 1}}));
  EXPECT_EQ(rowIn(rows, "colorMode"), json({{"page", "Color"},
                                            {"key", "colorMode"},
                                            {"label", "Color Mode"},
                                            {"kind", "segment"},
                                            {"value", 1},
                                            {"default", 1},
                                            {"titles", {"Default", "Custom Color"}},
                                            {"values", {1, 2}}}));
  EXPECT_EQ(rowIn(rows, "tintColor"), json({{"page", "Color"},
                                            {"key", "tintColor"},
                                            {"label", "Custom Color"},
                                            {"kind", "color"},
                                            {"value", "#f69240ff"},
                                            {"default", "#f69240ff"},
                                            {"alpha", true}}));
}

TEST_F(ListTest, ShowsWhatIsStored) {
  writePreferences(
      "<plist><dict><key>clockDigitSize</key><real>33.5</real><key>colorMode</key>"
      "<integer>2</integer><key>enabledSwitch</key><false/></dict></plist>");
  const std::string text = said({"list"});
  EXPECT_NE(text.find("  enabledSwitch              off "), std::string::npos) << text;
  EXPECT_NE(text.find("  clockDigitSize             33.5 "), std::string::npos) << text;
  EXPECT_NE(text.find(" 2 (Custom Color) "), std::string::npos) << text;
}

TEST_F(ListTest, TellsOfALongListHowLongItIs) {
  writePreferences(
      "<plist><dict><key>enabledLotties</key><array><string>Rain</string></array></dict></plist>");
  EXPECT_NE(said({"list"}).find("  enabledLotties             1 name   "), std::string::npos);
  EXPECT_EQ(saidJson({"list", "--json"}).back()["value"], json({"Rain"}));
}

TEST_F(ListTest, KnowsEverySettingThatIsTold) {
  for (const json& row : saidJson({"list", "--json"})) {
    const std::string key = row["key"];
    EXPECT_EQ(saidJson({"get", key, "--json"}), row["value"]) << key;
    EXPECT_EQ(row["value"], row["default"]) << key;
  }
}

TEST_F(ListTest, AndOthersSayThatTheFileCannotBeRead) {
  const std::vector<std::vector<std::string>> readers = {{"list"},
                                                         {"get", "clockDigitSize"},
                                                         {"get", "colorMode"},
                                                         {"get", "tintColor"},
                                                         {"get", "enabledSwitch"},
                                                         {"get", "enabledLotties"},
                                                         {"lotties", "list"}};
  std::map<std::vector<std::string>, std::string> withoutFile;
  for (const auto& arguments : readers) withoutFile[arguments] = said(arguments);
  for (const char* bytes : {"bad", "", "<plist><array/></plist>"}) {
    writePreferences(bytes);
    for (const auto& arguments : readers) {
      const End end = at(arguments);
      EXPECT_EQ(end.exitCode, 0);
      EXPECT_TRUE(end.err.starts_with(
          "quillmere-settings: /var/mobile/Library/Preferences/com.orvalen.quillmere.plist cannot "
          "be read ("))
          << arguments.back() << end.err;
      EXPECT_EQ(std::ranges::count(end.err, '\n'), 1) << end.err;
      EXPECT_EQ(end.out, withoutFile[arguments]);
    }
  }
}

TEST_F(GetTest, PrintsTheValueAlone) {
  EXPECT_EQ(said({"get", "enabledSwitch"}), "on\n");
  EXPECT_EQ(said({"get", "clockEnabled"}), "on\n");
  EXPECT_EQ(said({"get", "clockDigitSize"}), "75\n");
  EXPECT_EQ(said({"get", "clockDigitsSpacing"}), "-20\n");
  EXPECT_EQ(said({"get", "colorMode"}), "1\n");
  EXPECT_EQ(said({"get", "tintColor"}), "#f69240ff\n");
  EXPECT_EQ(said({"get", "enabledLotties"}), "Clock\nNice Buttons\n");
}

TEST_F(GetTest, PrintsJsonOfTheValuesType) {
  EXPECT_EQ(saidJson({"get", "clockEnabled", "--json"}), json(true));
  EXPECT_EQ(saidJson({"get", "clockDigitSize", "--json"}), json(75));
  EXPECT_EQ(saidJson({"get", "colorMode", "--json"}), json(1));
  EXPECT_EQ(saidJson({"get", "tintColor", "--json"}), json("#f69240ff"));
  EXPECT_EQ(saidJson({"get", "enabledLotties", "--json"}), json({"Clock", "Nice Buttons"}));
}

TEST_F(GetTest, PrintsASegmentsStoredValueThatNoTitleHas) {
  writePreferences("<plist><dict><key>colorMode</key><integer>7</integer></dict></plist>");
  EXPECT_EQ(said({"get", "colorMode"}), "7\n");
}

TEST_F(GetTest, OfAnUnknownKeyNamesTheNearestOrAll) {
  expectRefused({"get", "clockdigitsize"}, 2, "did you mean \"clockDigitSize\"?");
  expectRefused({"get", "clockDigitSiz"}, 2, "did you mean \"clockDigitSize\"?");
  for (const char* key : {"enabledSwitch", "colonHeight", "tintColor", "enabledLotties"}) {
    expectRefused({"get", "volume"}, 2, key);
  }
}

TEST_F(GetTest, AndListsChangeNothingInThePhone) {
  const std::vector<std::vector<std::string>> readers = {
      {"list"},           {"list", "--json"},        {"get", "colorMode"},
      {"get", "nothing"}, {"get", "enabledLotties"}, {"lotties", "list"}};
  for (const auto& arguments : readers) at(arguments);
  EXPECT_TRUE(std::filesystem::is_empty(file.parent_path()));
  for (const char* bytes : {"bad", "<plist><dict><key>a</key><date>x</date></dict></plist>",
                            "<plist><dict><key>a</key><true/></dict></plist>"}) {
    writePreferences(bytes);
    const auto written = std::filesystem::last_write_time(file);
    for (const auto& arguments : readers) at(arguments);
    EXPECT_EQ(preferences(), bytes);
    EXPECT_EQ(std::filesystem::last_write_time(file), written);
    const std::filesystem::directory_iterator files(file.parent_path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
  }
}

}  // namespace
}  // namespace program_tests
