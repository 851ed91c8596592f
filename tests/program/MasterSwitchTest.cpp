#include <gtest/gtest.h>

#include "tests/support/program/SubCommands.h"

namespace program_tests {
namespace {

using plist::Value;

using MasterSwitch = SubCommands;
using ResetTest = SubCommands;

constexpr const char* offer =
    "Enabling or Disabling the tweak requires a respring, Do you want to respring?";
constexpr const char* question = "Do you really want to Reset All Settings?";

TEST_F(MasterSwitch, IsStoredAndTheRespringOfferedIsCancelled) {
  const End end = at({"set", "enabledSwitch", "off", "--respring-command", noting()});
  EXPECT_EQ(end.exitCode, 0);
  EXPECT_EQ(end.out, "");
  EXPECT_NE(end.err.find(offer), std::string::npos) << end.err;
  EXPECT_NE(end.err.find("--respring"), std::string::npos) << end.err;
  EXPECT_EQ(stored("enabledSwitch"), Value(false));
  EXPECT_EQ(said({"get", "enabledSwitch"}), "off\n");
  EXPECT_EQ(noted(), "");
}

TEST_F(MasterSwitch, RespringsWhenThatIsConfirmed) {
  EXPECT_EQ(said({"set", "enabledSwitch", "off", "--respring", "--respring-command", noting()}),
            "");
  EXPECT_EQ(stored("enabledSwitch"), Value(false));
  EXPECT_EQ(noted(), "run\n");
}

TEST_F(MasterSwitch, PrintsTheNewValueAsJsonAlsoAfterARespring) {
  EXPECT_EQ(said({"set", "enabledSwitch", "no", "--respring", "--json"}), "false\n");
}

TEST_F(MasterSwitch, IsLeftInAnUnreadableFileWithAComplaint) {
  writePreferences("bad");
  expectRefused({"set", "enabledSwitch", "off"}, 1, "cannot be read");
  EXPECT_EQ(preferences(), "bad");
}

TEST_F(ResetTest, WithYesDeletesTheSettingsAndRespringsOnce) {
  said({"set", "clockDigitSize", "80"});
  EXPECT_EQ(said({"reset", "--yes", "--respring-command", noting()}), "");
  EXPECT_EQ(preferences(), std::nullopt);
  EXPECT_EQ(noted(), "run\n");
  EXPECT_EQ(said({"get", "clockDigitSize"}), "75\n");
}

TEST_F(ResetTest, EndsAlsoWhenThePhoneDoesNotComeBack) {
  const auto loader = phone / "Library/PreferenceLoader/Preferences/Quillmere.plist";
  expectRefused({"reset", "--yes", "--respring-command", "rm '" + loader.string() + "'"}, 1,
                "the phone did not restart");
}

TEST_F(ResetTest, WithoutSettingsIsDoneAsWell) {
  EXPECT_EQ(said({"reset", "--yes"}), "");
  EXPECT_EQ(preferences(), std::nullopt);
}

TEST_F(ResetTest, SaysInJsonThatItIsDone) {
  said({"set", "clockDigitSize", "80"});
  EXPECT_EQ(saidJson({"reset", "--yes", "--json"}), nlohmann::json({{"reset", true}}));
  EXPECT_EQ(preferences(), std::nullopt);
}

TEST_F(ResetTest, WithoutATerminalNeedsYes) {
  said({"set", "clockDigitSize", "80"});
  const auto before = preferences();
  expectRefused({"reset", "--respring-command", noting()}, 2, question);
  expectRefused({"reset"}, 2, "--yes");
  EXPECT_EQ(preferences(), before);
  EXPECT_EQ(noted(), "");
}

TEST_F(ResetTest, AsksOnATerminal) {
  for (const char* answer : {"n\n", "\n", "yess\n", "\4"}) {
    said({"set", "clockDigitSize", "80"});
    Start start = startAt({"reset"});
    start.typed = answer;
    const End end = run(start);
    EXPECT_EQ(end.exitCode, 1) << end.err;
    EXPECT_NE(end.err.find(std::string(question) + " [y/N] "), std::string::npos) << end.err;
    EXPECT_NE(end.err.find("nothing was reset"), std::string::npos) << end.err;
    EXPECT_EQ(stored("clockDigitSize"), Value::real(80.0F));
  }
}

TEST_F(ResetTest, OnATerminalIsDoneAfterYes) {
  for (const char* answer : {"y\n", "YES\n"}) {
    said({"set", "clockDigitSize", "80"});
    Start start = startAt({"reset"});
    start.typed = answer;
    const End end = run(start);
    EXPECT_EQ(end.exitCode, 0) << end.err;
    EXPECT_EQ(preferences(), std::nullopt);
  }
}

TEST_F(ResetTest, TakesAnUnreadableFileAwayToo) {
  writePreferences("bad");
  EXPECT_EQ(at({"reset", "--yes"}).exitCode, 0);
  EXPECT_EQ(preferences(), std::nullopt);
  EXPECT_TRUE(std::filesystem::is_empty(file.parent_path()));
}

TEST_F(ResetTest, SaysThatTheFileCouldNotBeDeleted) {
  std::filesystem::create_directories(file);
  expectRefused({"reset", "--yes"}, 1, "was not deleted");
}

}  // namespace
}  // namespace program_tests
