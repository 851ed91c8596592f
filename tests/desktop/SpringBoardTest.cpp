#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

#include "platform/Cephei/HBRespringController.h"
#include "tests/desktop/AddonTest.h"

namespace desktop_tests {
namespace {

using desktop::SpringBoard;
using std::chrono::milliseconds;
using Phase = SpringBoard::Phase;
using Strings = std::vector<std::string>;

constexpr const char* address = "prefs:root=Addon";

class SpringBoardTest : public AddonTest {
 protected:
  SpringBoardTest() {
    phone->mainQueue.now = [this] { return time; };
    board.open(address);
  }

  void pass(milliseconds duration) {
    time += duration;
    phone->mainQueue.run();
  }
  void later(milliseconds delay, const std::string& name) {
    phone->mainQueue.after(delay, [this, name] { ran.push_back(name); });
  }
  /// The controller on top, for as long as somebody holds it.
  std::weak_ptr<platform::UIViewController> controller() {
    return board.navigation()->top().controller;
  }

  desktop::MainQueue::Clock::time_point time{};
  SpringBoard& board = phone->springBoard;
  Strings ran;
};

TEST_F(SpringBoardTest, OpensTheApplication) {
  EXPECT_EQ(board.phase(), Phase::Running);
  ASSERT_TRUE(board.navigation());
  EXPECT_EQ(board.navigation()->pages().size(), 1U);
}

TEST_F(SpringBoardTest, ARestartIsDarkThenLockedThenRunning) {
  board.respringAndReturnTo(address);
  EXPECT_EQ(board.phase(), Phase::Dark);
  pass(SpringBoard::darkTime - milliseconds(1));
  EXPECT_EQ(board.phase(), Phase::Dark);
  pass(milliseconds(1));
  EXPECT_EQ(board.phase(), Phase::Locked);
  pass(SpringBoard::lockedTime - milliseconds(1));
  EXPECT_EQ(board.phase(), Phase::Locked);
  EXPECT_FALSE(board.navigation());
  pass(milliseconds(1));
  EXPECT_EQ(board.phase(), Phase::Running);
  EXPECT_TRUE(board.navigation());
}

TEST_F(SpringBoardTest, ARestartTakesItsTimeFromWhenItWasAskedFor) {
  board.respringAndReturnTo(address);
  pass(SpringBoard::darkTime + SpringBoard::lockedTime);
  EXPECT_EQ(board.phase(), Phase::Running);
}

TEST_F(SpringBoardTest, ThereAreNoPagesDuringARestart) {
  board.respringAndReturnTo(address);
  EXPECT_FALSE(board.navigation());
  pass(SpringBoard::darkTime);
  EXPECT_FALSE(board.navigation());
}

TEST_F(SpringBoardTest, AnotherRestartMeanwhileIsIgnored) {
  int restarts = 0;
  board.onRespring = [&] { ++restarts; };
  board.respringAndReturnTo(address);
  board.respringAndReturnTo("nowhere");
  pass(SpringBoard::darkTime);
  board.respringAndReturnTo("nowhere");
  pass(SpringBoard::lockedTime);
  EXPECT_EQ(board.phase(), Phase::Running);
  EXPECT_EQ(restarts, 1);
  EXPECT_EQ(reports, Strings{});
}

TEST_F(SpringBoardTest, WhatTheApplicationPutOffEndsWithIt) {
  later(milliseconds(0), "due");
  later(milliseconds(500), "soon");
  board.respringAndReturnTo(address);
  later(milliseconds(0), "asked for after the restart");
  later(milliseconds(500), "asked for after the restart, for later");
  pass(SpringBoard::darkTime + SpringBoard::lockedTime);
  EXPECT_EQ(ran, Strings{});
  EXPECT_EQ(board.phase(), Phase::Running);
  later(milliseconds(0), "of the new application");
  pass(milliseconds(0));
  EXPECT_EQ(ran, Strings{"of the new application"});
}

TEST_F(SpringBoardTest, WorkMayAskForTheRestart) {
  phone->mainQueue.after({}, [this] { board.respringAndReturnTo(address); });
  later(milliseconds(0), "after it");
  pass(milliseconds(0));
  EXPECT_EQ(board.phase(), Phase::Dark);
  pass(SpringBoard::darkTime + SpringBoard::lockedTime);
  EXPECT_EQ(board.phase(), Phase::Running);
  EXPECT_EQ(ran, Strings{});
}

TEST_F(SpringBoardTest, TheControllersEndAfterTheTurnThatAsked) {
  const auto old = controller();
  const unsigned number = board.navigation()->top().number;
  board.respringAndReturnTo(address);
  EXPECT_FALSE(old.expired());
  pass(milliseconds(0));
  EXPECT_TRUE(old.expired());
  pass(SpringBoard::darkTime + SpringBoard::lockedTime);
  EXPECT_FALSE(controller().expired());
  EXPECT_NE(board.navigation()->top().number, number);
}

TEST_F(SpringBoardTest, AnAddressOfAnotherFormOpensNothing) {
  for (const char* odd : {"", "prefs:", "prefs:root", "Prefs:root=Addon", " prefs:root=Addon"}) {
    EXPECT_THROW(board.open(odd), std::runtime_error) << odd;
  }
  EXPECT_THROW(board.open("prefs:root=Other"), std::runtime_error);
  EXPECT_EQ(board.phase(), Phase::Running);
  EXPECT_EQ(board.navigation()->pages().size(), 1U);
}

TEST_F(SpringBoardTest, ARestartToABadAddressStaysLockedAndIsReported) {
  board.respringAndReturnTo("nowhere");
  pass(SpringBoard::darkTime + SpringBoard::lockedTime);
  EXPECT_EQ(board.phase(), Phase::Locked);
  EXPECT_FALSE(board.navigation());
  EXPECT_TRUE(board.isStuck());
  EXPECT_EQ(reports, Strings{"nowhere does not open, and is tried again: nothing opens nowhere"});
  board.open(address);
  EXPECT_EQ(board.phase(), Phase::Running);
  const unsigned number = board.navigation()->top().number;
  pass(SpringBoard::retryTime);
  EXPECT_EQ(board.navigation()->top().number, number);
}

TEST_F(SpringBoardTest, ALoaderEntryThatIsGoneAtReopeningIsReportedOnceAndAwaited) {
  std::filesystem::rename(loader / "Addon.plist", loader / "gone");
  board.respringAndReturnTo(address);
  pass(SpringBoard::darkTime + SpringBoard::lockedTime);
  EXPECT_EQ(board.phase(), Phase::Locked);
  EXPECT_FALSE(board.navigation());
  pass(SpringBoard::retryTime);
  EXPECT_EQ(reports.size(), 1U);
  EXPECT_THAT(reports.at(0),
              testing::HasSubstr("no entry in /Library/PreferenceLoader/Preferences is labelled"));
  std::filesystem::rename(loader / "gone", loader / "Addon.plist");
  pass(SpringBoard::retryTime);
  EXPECT_EQ(board.phase(), Phase::Running);
  EXPECT_FALSE(board.isStuck());
}

TEST_F(SpringBoardTest, TheBundleAsksForARestartByItsController) {
  Phase seen = Phase::Running;
  board.onRespring = [&] { seen = board.phase(); };
  platform::HBRespringController::respringAndReturnTo(platform::NSURL::URLWithString(address));
  EXPECT_EQ(seen, Phase::Dark);
  pass(SpringBoard::darkTime + SpringBoard::lockedTime);
  EXPECT_EQ(board.phase(), Phase::Running);
}

}  // namespace
}  // namespace desktop_tests
