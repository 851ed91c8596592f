#pragma once

#include <string>
#include <vector>

#include "desktop/Foundation/ErrorBody.h"
#include "desktop/MessageUI/MailBody.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {

/// A mail that is being written, and the outcomes that its delegate was told.
class MailTest : public PhoneTest, public platform::MFMailComposeViewControllerDelegate {
 protected:
  MailTest() {
    composer.setMailComposeDelegate(*this);
    unprivileged.end();  // The program that writes mails may lie where others are not let in.
  }

  void didFinishWithResult(const platform::MFMailComposeViewController& controller,
                           platform::MFMailComposeResult result,
                           const platform::NSError& error) override {
    EXPECT_TRUE(desktop::bodyAs<desktop::MailBody>(controller));
    results.push_back(result);
    errors.push_back(error);
    composer = {};  // As when the screen goes away.
  }

  desktop::MailBody& mail() { return *desktop::bodyAs<desktop::MailBody>(composer); }

  /// The files in the phone's mail folder of that name.
  std::vector<std::string> mailsIn(const std::string& name) const {
    const auto mails = host("/var/mobile/Library/Mail/" + name);
    return std::filesystem::exists(mails) ? namesIn(mails) : std::vector<std::string>();
  }

  platform::MFMailComposeViewController composer = platform::MFMailComposeViewController::init();
  std::vector<platform::MFMailComposeResult> results;
  std::vector<platform::NSError> errors;
};

}  // namespace desktop_tests
