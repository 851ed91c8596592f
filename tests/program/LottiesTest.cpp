#include <fstream>
#include <gmock/gmock.h>

#include "tests/support/program/SubCommands.h"

namespace program_tests {
namespace {

using nlohmann::json;
using testing::UnorderedElementsAre;

class LottiesTest : public SubCommands {
 protected:
  /// The names of the enabled animations, in their order.
  json enabled() const { return saidJson({"lotties", "list", "--json"})["enabled"]; }

  void store(const std::string& names) const {
    writePreferences("<plist><dict><key>enabledLotties</key><array>" + names +
                     "</array></dict></plist>");
  }
};

TEST_F(LottiesTest, AreListedUnderTwoHeadings) {
  store("<string>Snow</string><string>Clock</string>");
  const std::string text = said({"lotties", "list"});
  EXPECT_TRUE(text.starts_with("Enabled Lotties\n  Snow\n  Clock\n\nDisabled Lotties\n  ")) << text;
  for (const char* name : {"\n  Nice Buttons\n", "\n  Rain\n", "\n  Wind\n"}) {
    EXPECT_NE(text.find(name), std::string::npos) << text;
  }
}

TEST_F(LottiesTest, AreListedInJson) {
  const json lists = saidJson({"lotties", "list", "--json"});
  EXPECT_EQ(lists["enabled"], json({"Clock", "Nice Buttons"}));
  EXPECT_THAT(lists["disabled"], UnorderedElementsAre("Rain", "Snow", "Wind"));
  EXPECT_EQ(lists.size(), 2U);
}

TEST_F(LottiesTest, AreListedInJsonOnceTheyWereChanged) {
  for (const std::vector<std::string>& arguments :
       std::initializer_list<std::vector<std::string>>{{"lotties", "enable", "Rain", "--json"},
                                                       {"lotties", "move", "Rain", "3", "--json"},
                                                       {"lotties", "disable", "Clock", "--json"}}) {
    const json lists = saidJson(arguments);
    EXPECT_EQ(lists["enabled"], enabled());
    EXPECT_EQ(lists["enabled"].size() + lists["disabled"].size(), 5U);
  }
  EXPECT_EQ(enabled(), json({"Nice Buttons", "Rain"}));
}

TEST_F(LottiesTest, AreListedWhenNoneIsEnabled) {
  store("");
  EXPECT_EQ(enabled(), json::array());
  EXPECT_EQ(said({"get", "enabledLotties"}), "");
  EXPECT_EQ(saidJson({"get", "enabledLotties", "--json"}), json::array());
}

TEST_F(LottiesTest, StandFirstOnceEnabled) {
  EXPECT_EQ(said({"lotties", "enable", "Rain"}), "");
  EXPECT_EQ(enabled(), json({"Rain", "Clock", "Nice Buttons"}));
  EXPECT_EQ(said({"get", "enabledLotties"}), "Rain\nClock\nNice Buttons\n");
}

TEST_F(LottiesTest, AreNoLongerEnabledOnceDisabled) {
  EXPECT_EQ(said({"lotties", "disable", "Nice Buttons"}), "");
  EXPECT_EQ(enabled(), json({"Clock"}));
}

TEST_F(LottiesTest, MoveToPlacesCountedFromOne) {
  store("<string>Snow</string><string>Clock</string><string>Rain</string>");
  EXPECT_EQ(said({"lotties", "move", "Snow", "3"}), "");
  EXPECT_EQ(enabled(), json({"Clock", "Rain", "Snow"}));
  EXPECT_EQ(said({"lotties", "move", "Rain", "1"}), "");
  EXPECT_EQ(enabled(), json({"Rain", "Clock", "Snow"}));
  EXPECT_EQ(said({"lotties", "move", "Clock", "2"}), "");
  EXPECT_EQ(enabled(), json({"Rain", "Clock", "Snow"}));
}

TEST_F(LottiesTest, HaveNoPlaceBesides) {
  for (const char* position : {"0", "3", "-1", "1.5", "first", "", "99999999999999999999"}) {
    expectRefused({"lotties", "move", "Clock", position}, 2, "POSITION takes 1 to 2, and not");
  }
  EXPECT_EQ(preferences(), std::nullopt);
}

TEST_F(LottiesTest, ThatAreThereAlreadyAreRefused) {
  expectRefused({"lotties", "enable", "Clock"}, 2, "\"Clock\" is enabled already");
  expectRefused({"lotties", "disable", "Rain"}, 2, "\"Rain\" is not enabled");
  expectRefused({"lotties", "move", "Rain", "1"}, 2, "\"Rain\" is not enabled");
  EXPECT_EQ(preferences(), std::nullopt);
}

TEST_F(LottiesTest, ThatDoNotExistAreRefusedWithTheNearestName) {
  expectRefused({"lotties", "enable", "rain"}, 2, "did you mean \"Rain\"?");
  expectRefused({"lotties", "disable", "Nice Button"}, 2, "did you mean \"Nice Buttons\"?");
  expectRefused({"lotties", "move", "Clok", "1"}, 2, "did you mean \"Clock\"?");
  expectRefused({"lotties", "enable", "Thunderstorm"}, 2, "lotties list tells the names");
  EXPECT_EQ(preferences(), std::nullopt);
}

TEST_F(LottiesTest, ThatAreNamedTwiceAreTheFirst) {
  store("<string>Snow</string><string>Clock</string><string>Snow</string><string>Wind</string>");
  said({"lotties", "move", "Snow", "2"});
  EXPECT_EQ(enabled(), json({"Clock", "Snow", "Wind"}));
}

TEST_F(LottiesTest, MayBeCalledAsSubCommandsAre) {
  for (const char* name : {"list", "move", "set"}) {
    std::ofstream(phone / "Library/Lotties/Quillmere" / (std::string(name) + ".lottie")) << "";
    EXPECT_EQ(said({"lotties", "enable", name}), "");
    EXPECT_EQ(enabled()[0], name);
  }
}

TEST_F(LottiesTest, HaveNamesThatNoTerminalObeys) {
  const std::string name = "Red\x1b[31m\nRain";
  std::ofstream(phone / "Library/Lotties/Quillmere" / (name + ".lottie")) << "";
  EXPECT_NE(said({"lotties", "list"}).find("\n  Red\\x1b[31m\\nRain\n"), std::string::npos);
  expectRefused({"lotties", "enable", "red\x1b[31m\nrain"}, 2,
                "no animation \"red\\x1b[31m\\nrain\"; did you mean \"Red\\x1b[31m\\nRain\"?\n");
  said({"lotties", "enable", name});
  EXPECT_EQ(said({"get", "enabledLotties"}), "Red\\x1b[31m\\nRain\nClock\nNice Buttons\n");
  EXPECT_EQ(saidJson({"get", "enabledLotties", "--json"})[0], name);
  EXPECT_EQ(enabled()[0], name);
}

TEST_F(LottiesTest, ThatCannotBeStoredAreComplainedOf) {
  writePreferences("bad");
  expectRefused({"lotties", "enable", "Rain"}, 1, "cannot be read");
  EXPECT_EQ(preferences(), "bad");
}

}  // namespace
}  // namespace program_tests
