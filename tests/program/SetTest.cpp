#include <chrono>
#include <gtest/gtest.h>
#include <thread>

#include "tests/support/program/SubCommands.h"
#include "tests/support/program/WebSocket.h"

namespace program_tests {
namespace {

using nlohmann::json;
using plist::Value;

using SetTest = SubCommands;

TEST_F(SetTest, PrintsNothingAndStoresWhatTheRowStores) {
  EXPECT_EQ(said({"set", "clockDigitSize", "80"}), "");
  EXPECT_EQ(stored("clockDigitSize"), Value::real(80.0F));
  EXPECT_EQ(said({"set", "clockVerticalAlignment", "-7"}), "");
  EXPECT_EQ(stored("clockVerticalAlignment"), Value::real(-7.0F));
  EXPECT_EQ(said({"set", "tintColor", "#11223344"}), "");
  EXPECT_EQ(stored("tintColor"), Value::string("44112233"));
  EXPECT_EQ(said({"set", "tintColor", "#AABBCC"}), "");
  EXPECT_EQ(stored("tintColor"), Value::string("FFAABBCC"));
  EXPECT_EQ(said({"get", "tintColor"}), "#aabbccff\n");
}

TEST_F(SetTest, TakesEveryWordForASwitch) {
  const std::pair<const char*, bool> words[] = {{"on", true},     {"off", false}, {"true", true},
                                                {"false", false}, {"yes", true},  {"no", false},
                                                {"1", true},      {"0", false},   {"ON", true}};
  for (const auto& [word, on] : words) {
    EXPECT_EQ(said({"set", "flashEnabled", word}), "");
    EXPECT_EQ(stored("flashEnabled"), Value(on)) << word;
  }
}

TEST_F(SetTest, TakesASegmentsValueOrItsTitle) {
  for (const char* text : {"2", "Custom Color", "custom color"}) {
    said({"set", "colorMode", "1"});
    EXPECT_EQ(stored("colorMode"), Value::integer(1));
    said({"set", "colorMode", text});
    EXPECT_EQ(stored("colorMode"), Value::integer(2)) << text;
  }
}

TEST_F(SetTest, PrintsTheNewValueAsJson) {
  EXPECT_EQ(saidJson({"set", "clockEnabled", "off", "--json"}), json(false));
  EXPECT_EQ(saidJson({"set", "colonHeight", "200", "--json"}), json(200));
  EXPECT_EQ(saidJson({"set", "colorMode", "custom color", "--json"}), json(2));
  EXPECT_EQ(saidJson({"set", "tintColor", "#ABCDEF", "--json"}), json("#abcdefff"));
}

TEST_F(SetTest, BoundsAndRoundsNothing) {
  for (const char* text : {"0", "201", "80.5", "1.0000001", "-1", "1e2", "inf", "abc", "", "8 0"}) {
    expectRefused({"set", "clockDigitSize", text}, 2,
                  "clockDigitSize takes 1 to 200 in steps of 1, and not \"" + std::string(text));
  }
  EXPECT_EQ(preferences(), std::nullopt);
}

TEST_F(SetTest, TakesBothEndsOfARange) {
  for (const char* text : {"1", "200", "-100", "100"}) {
    const std::string key = text == std::string("200") || text == std::string("1")
                                ? "quickActionsSize"
                                : "clockDigitsSpacing";
    said({"set", key, text});
    EXPECT_EQ(said({"get", key}), text + std::string("\n"));
  }
}

TEST_F(SetTest, RefusesWhatTheRowDoesNotTake) {
  expectRefused({"set", "clockEnabled", "maybe"}, 2, "clockEnabled takes on, off, and not");
  expectRefused({"set", "enabledSwitch", "2"}, 2, "enabledSwitch takes on, off, and not");
  expectRefused({"set", "colorMode", "3"}, 2,
                "colorMode takes 1 (Default), 2 (Custom Color), and not");
  for (const char* color : {"red", "#12345", "112233", "#gg0000", "#1122334455", "#-12345"}) {
    expectRefused({"set", "tintColor", color}, 2, "tintColor takes #rrggbb or #rrggbbaa, and not");
  }
  expectRefused({"set", "clockDigitSizes", "3"}, 2, "did you mean \"clockDigitSize\"?");
  expectRefused({"set", "enabledLotties", "Rain"}, 2, "lotties enable, disable and move");
  expectRefused({"set", "clockDigitSize", "3", "--respring"}, 2, "--respring goes with");
  EXPECT_EQ(preferences(), std::nullopt);
}

TEST_F(SetTest, LeavesTheWelcomeScreenToThePage) {
  said({"set", "clockEnabled", "off"});
  EXPECT_EQ(stored("showedWelcomeVC"), std::nullopt);
}

TEST_F(SetTest, KeepsTheFormOfAFileAndEveryOtherKey) {
  writePreferences("<plist><dict><key>mine</key><integer>3</integer></dict></plist>");
  said({"set", "clockEnabled", "off"});
  EXPECT_TRUE(preferences()->starts_with("<?xml"));
  EXPECT_EQ(stored("mine"), Value::integer(3));
}

TEST_F(SetTest, SaysThatAnUnreadableFileWasLeftAsItIs) {
  writePreferences("bad");
  expectRefused({"set", "clockEnabled", "off"}, 1, "cannot be read");
  EXPECT_EQ(preferences(), "bad");
}

TEST_F(SetTest, SaysThatNothingCouldBeStored) {
  namespace fs = std::filesystem;
  fs::permissions(folder.path, fs::perms::all);
  fs::permissions(phone, fs::perms::all);
  const fs::perms readable = fs::perms::owner_read | fs::perms::owner_exec |
                             fs::perms::others_read | fs::perms::others_exec;
  fs::permissions(file.parent_path(), readable);
  Start start = startAt({"set", "clockEnabled", "off"});
  start.unprivileged = true;
  const End end = run(start);
  fs::permissions(file.parent_path(), fs::perms::owner_all);
  EXPECT_EQ(end.exitCode, 1);
  EXPECT_NE(end.err.find("not stored"), std::string::npos) << end.err;
  EXPECT_EQ(preferences(), std::nullopt);
}

/// A page over that phone slides Clock's size; notifications go to the command.
void slideOnPage(const std::string& phone, const std::string& command) {
  // A system from before the welcome screen, which would cover the page.
  Program program({{"--root", phone, "--ios-version", "12.4", "--notify-command", command}});
  const WebSocket page(letIn(program));
  page.message();
  page.touch({{"kind", "tap"}, {"id", "page1.group0.row1"}});
  page.message();
  page.touch({{"kind", "slide"}, {"id", "page2.group2.row0"}, {"value", 80}});
  EXPECT_EQ(page.message()["kind"], "update");
}

/// What the file holds once it holds something; none after ten seconds.
std::optional<std::string> eventualContents(const std::filesystem::path& path) {
  for (int attempt = 0; attempt < 100; ++attempt) {
    if (auto text = contents(path); text && !text->empty()) return text;
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
  }
  return std::nullopt;
}

TEST_F(SetTest, OfASliderIsWhatASlideOnThePageIs) {
  const std::filesystem::path other = folder.path / "other";
  const std::filesystem::path log = folder.path / "slid";
  slideOnPage(other.string(), "echo \"$1\" >> '" + log.string() + "'");
  said({"set", "clockDigitSize", "80", "--notify-command", noting()});
  const auto slid = contents(other / "var/mobile/Library/Preferences" / file.filename());
  ASSERT_TRUE(slid.has_value());
  EXPECT_EQ(preferences(), slid);
  EXPECT_EQ(noted(), "com.orvalen.quillmere.prefs-changed\n");
  EXPECT_EQ(eventualContents(log), noted());
}

}  // namespace
}  // namespace program_tests
