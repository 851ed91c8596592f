#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/syscall.h>

#include "tests/promises/crash/Phone.h"
#include "tests/promises/crash/Rehearsal.h"

namespace crash_tests {
namespace {

/// The faults themselves, at the call by which the new preferences take the place of the old.
class FaultTest : public testing::Test {
 protected:
  Rehearsal::Attempt attempt(const Fault& fault) const {
    rehearsal.prepare(phone);
    const auto& calls = rehearsal.calls();
    const auto rename = std::ranges::find(calls, SystemCall{SYS_renameat});
    return rehearsal.attempt(phone, fault, static_cast<std::size_t>(rename - calls.begin()));
  }

  bool isChanged() const {
    const plist::Dictionary settings = settingsOf(phone);
    return *settings.find("clockDigitSize") != plist::Value::integer(90);
  }

  const Rehearsal& rehearsal = rehearsalOf(changes().front());
  const support::TemporaryFolder folder;
  const std::filesystem::path phone = folder.path / "phone";
};

TEST_F(FaultTest, WithNoneTheChangeIsMade) {
  EXPECT_TRUE(attempt(noFault).isAcknowledged);
  EXPECT_TRUE(isChanged());
}

TEST_F(FaultTest, KillsBeforeTheCall) {
  const auto made = attempt({"KilledBefore", Blow::KilledBefore});
  EXPECT_EQ(made.run.exitCode, 128 + SIGKILL);
  EXPECT_EQ(made.run.lastCall(), "renameat");
  EXPECT_FALSE(isChanged());
}

TEST_F(FaultTest, KillsAfterTheCall) {
  const auto made = attempt({"KilledAfter", Blow::KilledAfter});
  EXPECT_EQ(made.run.exitCode, 128 + SIGKILL);
  EXPECT_TRUE(isChanged());
}

TEST_F(FaultTest, RefusesTheCallWithTheError) {
  const auto made = attempt({"EROFS", Blow::Refused, EROFS});
  EXPECT_FALSE(made.isAcknowledged);
  EXPECT_NE(made.run.said.find("Read-only file system"), std::string::npos) << made.run.said;
}

}  // namespace
}  // namespace crash_tests
