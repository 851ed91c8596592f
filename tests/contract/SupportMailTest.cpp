#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Driver.h"

namespace {

using support::Driver;
using testing::ElementsAre;
using testing::HasSubstr;

using MailEnd = Driver::MailEnd;

struct SupportMail : testing::Test {
  void putPackage(const std::string& name) {
    putPackages("Package: " + name +
                "\nStatus: install ok installed\nMaintainer: Jo <jo@example.com>\n"
                "Architecture: iphoneos-arm\nVersion: 1.2.3\nDescription: a package\n\n");
  }
  void putPackages(const std::string& database) {
    phone.putPhoneFile("/var/lib/dpkg/status", database);
  }
  /// The mail as it is shown when the row is tapped.
  support::MailFacts write() {
    phone.forget();
    phone.tap("Write to Support");
    return phone.mail().value();
  }
  std::string attached() { return write().attachments.at(0).bytes; }
  Driver phone;
};

TEST_F(SupportMail, IsBuiltFromTheDeviceAndItsPackagesPresentedAndThenListenedTo) {
  phone.setDevice({"iPhone12,1", "14.3", "18C66"});
  putPackage("phone-package");
  const std::size_t size = attached().size();
  EXPECT_THAT(
      phone.journal(),
      ElementsAre(
          "MFMailComposeViewController init",
          "MFMailComposeViewController setSubject:\"Quillmere Support\"",
          "MFMailComposeViewController setToRecipients:(\"Orvalen <support@orvalen.com>\")",
          "MobileGestalt MGCopyAnswer:\"ProductType\"",
          "MobileGestalt MGCopyAnswer:\"ProductVersion\"",
          "MobileGestalt MGCopyAnswer:\"BuildVersion\"",
          "MFMailComposeViewController setMessageBody:\"\n\n\nCurrent Device: iPhone12,1, iOS 14.3 "
          "(18C66)\" isHTML:NO",
          "NSTask init", "NSTask setLaunchPath:\"/bin/sh\"",
          "NSTask setArguments:(\"-c\", \"dpkg -l\")", "NSPipe pipe",
          "NSTask setStandardOutput:<NSPipe>", "NSTask launch", "NSTask standardOutput",
          "NSPipe fileHandleForReading", "NSFileHandle readDataToEndOfFile",
          "MFMailComposeViewController addAttachmentData:<NSData of " + std::to_string(size) +
              " bytes> mimeType:\"text/plain\" fileName:\"dpkgl.txt\"",
          "UINavigationController presentViewController:<MFMailComposeViewController> "
          "animated:YES completion:nil",
          "MFMailComposeViewController setMailComposeDelegate:delegate"));
}

TEST_F(SupportMail, GoesToSupportUnderTheProductsName) {
  const auto mail = write();
  EXPECT_EQ(mail.subject, "Quillmere Support");
  EXPECT_EQ(mail.to, "Orvalen <support@orvalen.com>");
}

TEST_F(SupportMail, LeavesThreeLinesAboveTheDevice) {
  phone.setDevice({"iPhone12,1", "14.3", "18C66"});
  const auto mail = write();
  EXPECT_EQ(mail.body, "\n\n\nCurrent Device: iPhone12,1, iOS 14.3 (18C66)");
  EXPECT_FALSE(mail.isHTML);
}

TEST_F(SupportMail, WritesNullForEachAnswerThatIsMissing) {
  phone.setDevice({});
  EXPECT_EQ(write().body, "\n\n\nCurrent Device: (null), iOS (null) ((null))");
  phone.endMail(MailEnd::Cancel);
  phone.setDevice({{}, "14.3", {}});
  EXPECT_EQ(write().body, "\n\n\nCurrent Device: (null), iOS 14.3 ((null))");
}

TEST_F(SupportMail, ListsTheInstalledPackages) {
  putPackage("phone-package");
  const auto mail = write();
  ASSERT_EQ(mail.attachments.size(), 1U);
  EXPECT_EQ(mail.attachments[0].name, "dpkgl.txt");
  EXPECT_EQ(mail.attachments[0].type, "text/plain");
  EXPECT_THAT(mail.attachments[0].bytes, testing::StartsWith("Desired="));
  EXPECT_THAT(mail.attachments[0].bytes,
              testing::ContainsRegex(
                  "\nii +phone-package(:iphoneos-arm)? +1\\.2\\.3 +iphoneos-arm +a package\n$"));
}

TEST_F(SupportMail, AttachesAnEmptyFileWhenTheCommandWritesNothing) {
  putPackages("no package database\n");
  const auto mail = write();
  ASSERT_EQ(mail.attachments.size(), 1U);
  EXPECT_EQ(mail.attachments[0].name, "dpkgl.txt");
  EXPECT_EQ(mail.attachments[0].bytes, "");
}

TEST_F(SupportMail, IsWrittenAnewEachTime) {
  phone.setDevice({"iPhone12,1", "14.3", "18C66"});
  putPackage("first-package");
  write();
  phone.endMail(MailEnd::Cancel);
  phone.setDevice({"iPhone12,1", "14.4", "18D52"});
  putPackage("second-package");
  const auto mail = write();
  EXPECT_EQ(mail.body, "\n\n\nCurrent Device: iPhone12,1, iOS 14.4 (18D52)");
  EXPECT_THAT(mail.attachments.at(0).bytes, HasSubstr("second-package"));
  EXPECT_THAT(phone.journal(), testing::Contains("NSTask launch").Times(1));
}

TEST_F(SupportMail, EveryOutcomeClosesTheComposerAndNothingElse) {
  for (const MailEnd end : {MailEnd::Send, MailEnd::Save, MailEnd::Cancel}) {
    write();
    phone.forget();
    phone.endMail(end);
    EXPECT_THAT(phone.journal(),
                ElementsAre("QMRoot dismissViewControllerAnimated:YES completion:nil"));
    EXPECT_FALSE(phone.mail());
    EXPECT_FALSE(phone.alert());
    EXPECT_EQ(phone.fileBytes(), std::nullopt);
    EXPECT_THAT(phone.titles(), ElementsAre("Quillmere"));
  }
}

TEST_F(SupportMail, FailureClosesTheComposerTheSameWay) {
  phone.putPhoneFile("/var/mobile/Library/Mail", "no folder");
  for (const MailEnd end : {MailEnd::Send, MailEnd::Save}) {
    write();
    phone.forget();
    phone.endMail(end);
    EXPECT_THAT(phone.journal(),
                ElementsAre("QMRoot dismissViewControllerAnimated:YES completion:nil"));
    EXPECT_FALSE(phone.mail());
    EXPECT_FALSE(phone.alert());
  }
}

TEST_F(SupportMail, IsLeftOutOnAPhoneWithoutMail) {
  phone.withoutClass("MFMailComposeViewController");
  phone.forget();
  phone.tap("Write to Support");
  EXPECT_FALSE(phone.mail());
  EXPECT_THAT(phone.titles(), ElementsAre("Quillmere"));
  EXPECT_THAT(phone.journal(),
              testing::Not(testing::Contains(HasSubstr("setMailComposeDelegate"))));
  phone.tap("Clock");
  EXPECT_THAT(phone.titles(), ElementsAre("Quillmere", "Clock"));
}

TEST_F(SupportMail, PostsNothing) {
  write();
  phone.endMail(MailEnd::Send);
  EXPECT_THAT(phone.notifications(), testing::IsEmpty());
}

}  // namespace
