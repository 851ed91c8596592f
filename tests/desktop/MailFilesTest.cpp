#include <gmock/gmock.h>
#include <set>

#include "tests/desktop/MailTest.h"

namespace desktop_tests {
namespace {

using platform::MFMailComposeViewController;

using MailFiles = MailTest;

TEST_F(MailFiles, HaveNamesThatNoOtherProgramTakesWhoeverLookedFirst) {
  std::set<std::string> names;
  for (int times = 0; times < 20; ++times) {
    const auto another = MFMailComposeViewController::init();
    desktop::bodyAs<desktop::MailBody>(another)->saveDraft();
    const auto drafts = mailsIn("Drafts");
    ASSERT_EQ(drafts.size(), 1U);
    EXPECT_THAT(drafts[0], testing::MatchesRegex("[0-9]{8}T[0-9]{6}Z-[0-9a-f]{16}\\.eml"));
    // As if the other program had not seen it yet.
    std::filesystem::remove(host("/var/mobile/Library/Mail/Drafts/" + drafts[0]));
    EXPECT_TRUE(names.insert(drafts[0]).second) << drafts[0];
  }
}

}  // namespace
}  // namespace desktop_tests
