#include <gtest/gtest.h>
#include <string>

#include "desktop/MessageUI/MailFields.h"

namespace desktop_tests {
namespace {

using desktop::MimeMessage;
using desktop::packed;
using desktop::unpacked;

/// Bytes that no text holds, and a zero.
const std::string odd("\xff\xfe\0half \xed\xa0\x80", 12);

TEST(MailFieldsTest, AreTheSameOnTheOtherSide) {
  const MimeMessage sent{
      "jo@example.com", "Déjà vu", odd, true, {{"a.txt", "text/plain", ""}, {odd, odd, odd}}};
  const MimeMessage got = unpacked(packed(sent));
  EXPECT_EQ(got.recipients, sent.recipients);
  EXPECT_EQ(got.subject, sent.subject);
  EXPECT_EQ(got.body, sent.body);
  EXPECT_TRUE(got.isHTML);
  ASSERT_EQ(got.attachments.size(), 2U);
  EXPECT_EQ(got.attachments[0].fileName, "a.txt");
  EXPECT_EQ(got.attachments[0].mimeType, "text/plain");
  EXPECT_EQ(got.attachments[0].bytes, "");
  EXPECT_EQ(got.attachments[1].fileName, odd);
  EXPECT_EQ(got.attachments[1].bytes, odd);
}

TEST(MailFieldsTest, CarryWhatIsLargerThanAnyFileOfSettings) {
  const std::string large(std::size_t{40} << 20, 'x');
  const MimeMessage got = unpacked(packed({"", "", "", false, {{"", "", large}}}));
  ASSERT_EQ(got.attachments.size(), 1U);
  EXPECT_TRUE(got.attachments[0].bytes == large);
}

TEST(MailFieldsTest, OfAnythingElseAreRefused) {
  const std::string whole = packed({"jo@example.com", "subject", "body", false, {}});
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_THROW(unpacked(whole.substr(0, size)), std::runtime_error) << size;
  }
  EXPECT_THROW(unpacked("<plist><array/></plist>"), std::runtime_error);
  EXPECT_THROW(unpacked("<plist><dict/></plist>"), std::runtime_error);
}

}  // namespace
}  // namespace desktop_tests
