#include <gtest/gtest.h>

#include "desktop/MessageUI/Mailbox.h"

namespace desktop_tests {
namespace {

using desktop::mailboxesIn;

/// "name|address" of each, with spaces between; "none" for none.
std::string read(std::string_view list) {
  const auto mailboxes = mailboxesIn(list);
  if (!mailboxes) return "none";
  std::string text;
  for (const auto& each : *mailboxes) {
    text += (text.empty() ? "" : " ") + each.name + '|' + each.address;
  }
  return text;
}

TEST(Mailboxes, AreAddressesWithOrWithoutNames) {
  EXPECT_EQ(read("jo@example.com"), "|jo@example.com");
  EXPECT_EQ(read("<jo@example.com>"), "|jo@example.com");
  EXPECT_EQ(read("Jo <jo@example.com>"), "Jo|jo@example.com");
  EXPECT_EQ(read(" Jö D. Doe  <jo@example.com> "), "Jö D. Doe|jo@example.com");
  EXPECT_EQ(read(R"("Doe, \"Jo\"" <jo@example.com>)"), R"(Doe, "Jo"|jo@example.com)");
}

TEST(Mailboxes, StandBetweenCommas) {
  EXPECT_EQ(read("a@b.c, Jo <d@e.f>,g@h"), "|a@b.c Jo|d@e.f |g@h");
  EXPECT_EQ(read(" , a@b.c,,\n d@e.f, "), "|a@b.c |d@e.f");
}

TEST(Mailboxes, HaveEveryLetterThatAnAddressMayHold) {
  for (const char* each : {"a.b+c@d-e.f", "!#$%&'*+-/=?^_`{|}~@b", "1@2.3"}) {
    EXPECT_EQ(read(each), std::string("|") + each);
  }
}

TEST(Mailboxes, AreNoneWhenOneIsNotWellFormed) {
  for (const char* each : {"",
                           " ",
                           ",",
                           "jo",
                           "jo@",
                           "@b",
                           "a@b@c",
                           "a b@c",
                           "a@b c",
                           "a@.b",
                           "a@b.",
                           "a@b..c",
                           ".a@b",
                           "a.@b",
                           "a..b@c",
                           "a@b_c",
                           "a@b;c@d",
                           "<a@b",
                           "a@b>",
                           "Jo a@b",
                           "<>",
                           "Jo <>",
                           "Jo <jo>",
                           "J<o <a@b>",
                           "Doe; Jo <a@b>",
                           "\"Jo <a@b>",
                           "\"Jo\" D <a@b>",
                           "\"Jo\\\" <a@b>",
                           "a@b, jo",
                           "a@b c@d",
                           "ä@b",
                           "a@ä",
                           "a@b\nBcc: c@d"}) {
    EXPECT_EQ(read(each), "none") << each;
  }
}

TEST(Mailboxes, AreBoundedInLength) {
  const std::string local(64, 'a');
  const std::string domain(255, 'b');
  EXPECT_EQ(read(local + '@' + domain), '|' + local + '@' + domain);
  EXPECT_EQ(read('a' + local + "@b"), "none");
  EXPECT_EQ(read("a@b" + domain), "none");
}

}  // namespace
}  // namespace desktop_tests
