#include <gtest/gtest.h>

#include "desktop/Exception.h"
#include "desktop/Foundation/Values.h"
#include "platform/Foundation/NSNumber.h"
#include "tests/desktop/MailTest.h"

namespace desktop_tests {
namespace {

namespace fs = std::filesystem;
using platform::IsHTML;
using platform::MFMailComposeResult;
using platform::MFMailComposeViewController;
using platform::NSArray;
using platform::NSData;
using platform::NSString;

using MailComposer = MailTest;
using Results = std::vector<MFMailComposeResult>;

TEST_F(MailComposer, TakesWhatTheBundleSets) {
  const NSData data = desktop::box(plist::Value::data("bytes")).as<NSData>();
  phone->journal.start();
  composer.setSubject("Subject");
  composer.setToRecipients(
      NSArray::arrayWithObjects({NSString("Jo <jo@example.com>"), NSString("al@example.com")}));
  composer.setMessageBody("<b>", IsHTML::Yes);
  composer.addAttachmentData(data, "text/plain", "a.txt");
  EXPECT_EQ(mail().message.subject, "Subject");
  EXPECT_EQ(mail().message.recipients, "Jo <jo@example.com>, al@example.com");
  EXPECT_EQ(mail().message.body, "<b>");
  EXPECT_TRUE(mail().message.isHTML);
  ASSERT_EQ(mail().message.attachments.size(), 1U);
  EXPECT_EQ(mail().message.attachments[0].bytes, "bytes");
  EXPECT_FALSE(mail().isChanged());
  const std::vector<std::string> expected = {
      R"(MFMailComposeViewController setSubject:"Subject")",
      R"(MFMailComposeViewController setToRecipients:("Jo <jo@example.com>", "al@example.com"))",
      R"(MFMailComposeViewController setMessageBody:"<b>" isHTML:YES)",
      R"(MFMailComposeViewController addAttachmentData:<NSData of 5 bytes> mimeType:"text/plain" )"
      R"(fileName:"a.txt")",
  };
  EXPECT_EQ(phone->journal.lines(), expected);
}

TEST_F(MailComposer, RaisesOnAnAttachmentThatIsNone) {
  const NSData data = desktop::box(plist::Value::data("")).as<NSData>();
  EXPECT_THROW(composer.addAttachmentData(NSData(), "text/plain", "a"), desktop::Exception);
  EXPECT_THROW(composer.addAttachmentData(data, NSString(), "a"), desktop::Exception);
  EXPECT_THROW(composer.addAttachmentData(data, "text/plain", NSString()), desktop::Exception);
  EXPECT_TRUE(mail().message.attachments.empty());
}

TEST_F(MailComposer, IsNoneOnAPhoneWithoutMail) {
  phone->missingClasses.insert("MFMailComposeViewController");
  MFMailComposeViewController none = MFMailComposeViewController::init();
  EXPECT_FALSE(none);
  none.setSubject("a");
  none.addAttachmentData(NSData(), NSString(), NSString());
  none.setMailComposeDelegate(*this);
}

TEST_F(MailComposer, KnowsWhenItsTextsWereEdited) {
  mail().setTo("");
  mail().setSubject("");
  mail().setBody("");
  EXPECT_FALSE(mail().isChanged());
  mail().setBody("a");
  EXPECT_TRUE(mail().isChanged());
  EXPECT_EQ(mail().message.body, "a");
}

TEST_F(MailComposer, SendsOnlyToAddresses) {
  for (const char* each : {"", "jo", "jo@example.com, al"}) {
    mail().setTo(each);
    EXPECT_FALSE(mail().canSend()) << each;
    mail().send();
  }
  EXPECT_TRUE(results.empty());
  EXPECT_TRUE(mailsIn("Outbox").empty());
  mail().setTo("Jo <jo@example.com>");
  EXPECT_TRUE(mail().canSend());
}

TEST_F(MailComposer, PutsASentMailIntoTheOutboxAndTells) {
  std::vector<std::string> sent;
  phone->mailSent = [&](const std::string& each) {
    EXPECT_EQ(results.size(), 1U);
    sent.push_back(each);
  };
  mail().setTo("jo@example.com");
  mail().send();
  EXPECT_EQ(results, Results{MFMailComposeResult::Sent});
  EXPECT_FALSE(errors.at(0));
  ASSERT_EQ(mailsIn("Outbox").size(), 1U);
  const std::string name = mailsIn("Outbox")[0];
  EXPECT_TRUE(name.ends_with(".eml")) << name;
  const std::string message = bytesOf(host("/var/mobile/Library/Mail/Outbox/" + name));
  EXPECT_EQ(sent, std::vector<std::string>{message});
  EXPECT_NE(message.find("\r\nTo: jo@example.com\r\n"), std::string::npos);
}

TEST_F(MailComposer, GivesEachMailAFileOfItsOwn) {
  for (int times = 0; times < 3; ++times) {
    auto another = MFMailComposeViewController::init();
    desktop::bodyAs<desktop::MailBody>(another)->setTo("jo@example.com");
    desktop::bodyAs<desktop::MailBody>(another)->send();
  }
  EXPECT_EQ(mailsIn("Outbox").size(), 3U);
  EXPECT_TRUE(results.empty());
}

TEST_F(MailComposer, SavesADraftWithWhateverWasWritten) {
  mail().setTo("jo");
  mail().saveDraft();
  EXPECT_EQ(results, Results{MFMailComposeResult::Saved});
  ASSERT_EQ(mailsIn("Drafts").size(), 1U);
  EXPECT_NE(bytesOf(host("/var/mobile/Library/Mail/Drafts/" + mailsIn("Drafts")[0])).find("jo\r\n"),
            std::string::npos);
  EXPECT_TRUE(mailsIn("Outbox").empty());
}

TEST_F(MailComposer, KeepsNothingOfACancelledMail) {
  mail().setTo("jo@example.com");
  mail().cancel();
  EXPECT_EQ(results, Results{MFMailComposeResult::Cancelled});
  EXPECT_FALSE(fs::exists(host("/var/mobile/Library/Mail")));
}

TEST_F(MailComposer, IsDoneOnce) {
  const auto kept = composer;
  auto* body = desktop::bodyAs<desktop::MailBody>(kept);
  body->setTo("jo@example.com");
  body->send();
  body->send();
  body->saveDraft();
  body->cancel();
  EXPECT_EQ(results, Results{MFMailComposeResult::Sent});
  EXPECT_EQ(mailsIn("Outbox").size(), 1U);
  EXPECT_TRUE(mailsIn("Drafts").empty());
}

TEST_F(MailComposer, FailsWithAReasonWhenTheDiskRefuses) {
  bool told = false;
  phone->mailSent = [&](const std::string&) { told = true; };
  writeBytes(host("/var/mobile/Library/Mail"), "a file");
  mail().setTo("jo@example.com");
  mail().send();
  EXPECT_EQ(results, Results{MFMailComposeResult::Failed});
  const auto* error = desktop::bodyAs<desktop::ErrorBody>(errors.at(0));
  ASSERT_TRUE(error);
  EXPECT_EQ(error->code, ENOTDIR);
  EXPECT_EQ(error->text, "Not a directory");
  EXPECT_TRUE(reported("the mail was not put into /var/mobile/Library/Mail/Outbox/"));
  EXPECT_FALSE(told);
}

}  // namespace
}  // namespace desktop_tests
