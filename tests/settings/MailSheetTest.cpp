#include "platform/MessageUI/MFMailComposeViewController.h"
#include "tests/settings/PhoneScreenTest.h"

namespace settings_tests {
namespace {

using nlohmann::json;
using platform::MFMailComposeResult;
using Results = std::vector<MFMailComposeResult>;

/// A phone with a mail on its screen.
class MailSheetTest : public PhoneScreenTest, public platform::MFMailComposeViewControllerDelegate {
 protected:
  MailSheetTest() {
    auto mail = platform::MFMailComposeViewController::init();
    mail.setToRecipients(
        platform::NSArray::arrayWithObjects({platform::NSString("a@example.com")}));
    mail.setSubject("Subject");
    mail.setMessageBody("Body", platform::IsHTML::No);
    mail.setMailComposeDelegate(*this);
    pages().present(mail);
  }

  void didFinishWithResult(const platform::MFMailComposeViewController&, MFMailComposeResult result,
                           const platform::NSError&) override {
    results.push_back(result);
    pages().dismiss();
  }

  json typing(const std::string& field, const std::string& text) {
    return {{"kind", "type"}, {"id", overlay()[field]["id"]}, {"text", text}};
  }
  void press(const char* button) { tap(overlay()[button]); }
  /// Chooses what is to become of the mail, by the title of the choice.
  void choose(const std::string& title) {
    const json shown = overlay();
    for (const json& choice : shown["choices"]) {
      if (choice["title"] == title) return tap(choice["id"]);
    }
    FAIL() << "there is no choice " << title;
  }
  std::size_t mailsIn(const std::string& box) {
    const std::string path = "/var/mobile/Library/Mail/" + box;
    return phone.folder.exists(path) ? phone.folder.list(path).size() : 0;
  }

  Results results;
};

TEST_F(MailSheetTest, ShowsWhatIsWritten) {
  const std::string id = tree().at("window")["overlay"];
  EXPECT_EQ(overlay(), (json{{"kind", "mail"},
                             {"to", {{"id", id + ".to"}, {"text", "a@example.com"}}},
                             {"subject", {{"id", id + ".subject"}, {"text", "Subject"}}},
                             {"body", {{"id", id + ".body"}, {"text", "Body"}}},
                             {"attachments", json::array()},
                             {"send", id + ".send"},
                             {"cancel", id + ".cancel"},
                             {"canSend", true},
                             {"choices", nullptr}}));
}

TEST_F(MailSheetTest, ItsFieldsTakeWhatIsTyped) {
  for (const char* field : {"to", "subject", "body"}) {
    touch(typing(field, std::string("new ") + field));
    EXPECT_EQ(overlay()[field]["text"], std::string("new ") + field);
  }
  EXPECT_EQ(overlay()["canSend"], false);
}

TEST_F(MailSheetTest, TakesATextOf32KiBAndNoneThatIsLonger) {
  const std::string longest(32'768, 'x');
  touch(typing("body", longest));
  EXPECT_EQ(overlay()["body"]["text"], longest);
  EXPECT_EQ(refusal(typing("body", longest + "y")), "\"text\" is too long");
  // Counted in bytes: 16,385 letters of two each.
  std::string letters;
  for (int i = 0; i < 16'385; ++i) letters += "é";
  EXPECT_EQ(refusal(typing("body", letters)), "\"text\" is too long");
  EXPECT_EQ(overlay()["body"]["text"], longest);
}

TEST_F(MailSheetTest, SendingPutsItIntoTheOutboxAndTakesItAway) {
  press("send");
  EXPECT_EQ(results, Results{MFMailComposeResult::Sent});
  EXPECT_EQ(mailsIn("Outbox"), 1U);
  EXPECT_EQ(overlay(), nullptr);
}

TEST_F(MailSheetTest, WhatCannotBeSentStays) {
  touch(typing("to", "nobody"));
  press("send");
  EXPECT_EQ(results, Results{});
  EXPECT_EQ(overlay()["kind"], "mail");
}

TEST_F(MailSheetTest, OneThatNobodyEditedIsCancelledAtOnce) {
  press("cancel");
  EXPECT_EQ(results, Results{MFMailComposeResult::Cancelled});
  EXPECT_EQ(overlay(), nullptr);
  EXPECT_EQ(mailsIn("Drafts"), 0U);
}

TEST_F(MailSheetTest, CancellingAnEditedOneAsks) {
  touch(typing("subject", "Other"));
  press("cancel");
  EXPECT_EQ(results, Results{});
  std::vector<std::string> styles;
  const json shown = overlay();
  for (const json& choice : shown["choices"]) styles.push_back(choice["style"]);
  EXPECT_EQ(styles, (std::vector<std::string>{"destructive", "default", "cancel"}));
}

TEST_F(MailSheetTest, EachChoiceDoesWhatItSays) {
  touch(typing("subject", "Other"));
  press("cancel");
  choose("Cancel");
  EXPECT_EQ(overlay()["choices"], nullptr);
  EXPECT_EQ(overlay()["subject"]["text"], "Other");
  press("cancel");
  choose("Save Draft");
  EXPECT_EQ(results, Results{MFMailComposeResult::Saved});
  EXPECT_EQ(mailsIn("Drafts"), 1U);
  EXPECT_EQ(overlay(), nullptr);
}

TEST_F(MailSheetTest, ADeletedDraftIsKeptNowhere) {
  touch(typing("body", "Other"));
  press("cancel");
  choose("Delete Draft");
  EXPECT_EQ(results, Results{MFMailComposeResult::Cancelled});
  EXPECT_EQ(mailsIn("Drafts") + mailsIn("Outbox"), 0U);
}

TEST_F(MailSheetTest, TakesNoTouchOnAnythingElse) {
  const std::string id = tree().at("window")["overlay"];
  for (const std::string& other :
       {id, id + ".", id + ".to", id + ".send.", std::string(clockRow)}) {
    EXPECT_EQ(refusal(json{{"kind", "tap"}, {"id", other}}), "that is covered") << other;
  }
  for (const std::string& other : {id, id + ".cc", id + ".send", std::string("overlay0.to")}) {
    EXPECT_EQ(refusal(json{{"kind", "type"}, {"id", other}, {"text", "x"}}), "that is covered");
  }
  EXPECT_EQ(overlay()["to"]["text"], "a@example.com");
}

TEST_F(MailSheetTest, WhatBelongedToOneThatIsGoneIsRefused) {
  const json message = typing("body", "late");
  press("cancel");
  EXPECT_NE(refusal(message), "");
}

}  // namespace
}  // namespace settings_tests
