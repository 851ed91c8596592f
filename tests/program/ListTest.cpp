#include <algorithm>
#include <fstream>
#include <gmock/gmock.h>

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
            "Quillmere\n"
            "  enabledSwitch              on           on, off\n"
            "\n"
            "Clock\n"
            "  clockEnabled               on           on, off                default on\n"
            "  clockLoopAnimation         on           on, off                default on\n"
            "  clockDigitSize             75           1 to 200               default 75\n"
            "  clockVerticalAlignment     0            -100 to 100            default 0\n"
            "  clockDigitsSpacing         -20          -100 to 100            default -20\n"
            "  colonHeight                50           1 to 200               default 50\n"
            "\n"
            "Quick Actions\n"
            "  flashEnabled               on           on, off                default on\n"
            "  cameraEnabled              on           on, off                default on\n"
            "  quickActionsLoopAnimation  on           on, off                default on\n"
            "  quickActionsSize           75           1 to 200               default 75\n"
            "\n"
            "Color\n"
            "  colorMode                  1 (Default)  Default, Custom Color  default 1 (Default)\n"
            "  tintColor                  #f69240ff    #rrggbb or #rrggbbaa   default #f69240ff\n");
}

TEST_F(ListTest, TellsProgramsWhatEachRowOffers) {
  const json rows = saidJson({"list", "--json"});
  EXPECT_EQ(rows.size(), 13U);
  EXPECT_EQ(rows[0], json({{"page", "Quillmere"},
                           {"key", "enabledSwitch"},
                           {"label", "Quillmere"},
                           {"kind", "switch"},
                           {"value", true},
                           {"default", nullptr}}));
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
