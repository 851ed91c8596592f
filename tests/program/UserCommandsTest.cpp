#include <gtest/gtest.h>

#include "tests/support/program/SubCommands.h"

namespace program_tests {
namespace {

using plist::Value;

/// The commands of this computer that the user has run.
using UserCommands = SubCommands;

constexpr const char* changed = "com.orvalen.quillmere.prefs-changed\n";

TEST_F(UserCommands, GetTheNameOfEachNotification) {
  for (const char* size : {"80", "81"}) {
    said({"set", "clockDigitSize", size, "--notify-command", noting()});
  }
  EXPECT_EQ(noted(), std::string(changed) + changed);
}

TEST_F(UserCommands, AreNotRunForWhatOnlyReads) {
  for (const char* key : {"clockEnabled", "enabledLotties"}) {
    said({"get", key, "--notify-command", noting(), "--respring-command", noting(),
          "--mail-command", noting()});
  }
  said({"list", "--notify-command", noting(), "--respring-command", noting()});
  EXPECT_EQ(noted(), "");
}

TEST_F(UserCommands, AreNotRunForAChangeThatIsRefused) {
  expectRefused({"set", "clockDigitSize", "0", "--notify-command", noting()}, 2, "takes 1 to 200");
  EXPECT_EQ(noted(), "");
}

TEST_F(UserCommands, AreNotRunForMailsThatNobodySends) {
  said({"reset", "--yes", "--mail-command", noting()});
  EXPECT_EQ(noted(), "");
}

TEST_F(UserCommands, AreWaitedFor) {
  said({"set", "clockDigitSize", "80", "--notify-command", "sleep 0.5; " + noting()});
  EXPECT_EQ(noted(), changed);
}

TEST_F(UserCommands, ThatFailAreReportedAndTheChangeIsStored) {
  const End end = at({"set", "clockDigitSize", "80", "--notify-command", "exit 3"});
  EXPECT_EQ(end.exitCode, 0);
  EXPECT_EQ(end.err, "quillmere-settings: the command \"exit 3\" ended with status 3\n");
  EXPECT_EQ(stored("clockDigitSize"), Value::real(80.0F));
}

TEST_F(UserCommands, ThatFailDoNotHoldUpAReset) {
  said({"set", "clockDigitSize", "80"});
  const End end = at({"reset", "--yes", "--respring-command", "false"});
  EXPECT_EQ(end.exitCode, 0);
  EXPECT_EQ(end.err, "quillmere-settings: the command \"false\" ended with status 1\n");
  EXPECT_EQ(preferences(), std::nullopt);
}

TEST_F(UserCommands, WriteToStandardErrorSoThatAnswersStayClean) {
  const End end = at({"set", "clockDigitSize", "80", "--json", "--notify-command", "echo done"});
  EXPECT_EQ(end.out, "80\n");
  EXPECT_EQ(end.err, "done\n");
}

}  // namespace
}  // namespace program_tests
