#pragma once

#include <string>

#include "desktop/Body.h"
#include "desktop/MessageUI/MimeMessage.h"
#include "platform/MessageUI/MFMailComposeViewController.h"

namespace desktop {

/// The screen on which the user writes a mail. It is done with the first of `send`, `saveDraft` and
/// `cancel`, which tells the delegate; what is asked of it later does nothing.
class MailBody : public Body {
 public:
  std::string_view className() const override { return "MFMailComposeViewController"; }

  /// @name The user's hands.
  /// @{
  void setTo(std::string recipients) { change(message.recipients, std::move(recipients)); }
  void setSubject(std::string subject) { change(message.subject, std::move(subject)); }
  void setBody(std::string body) { change(message.body, std::move(body)); }

  /// Whether there is somebody to send it to, and every address is well-formed.
  bool canSend() const;

  /// Puts the mail into the phone's outbox, /var/mobile/Library/Mail/Outbox, and at the very end
  /// tells `Phone::mailSent`. Does nothing unless it can be sent.
  void send();
  /// Puts the mail into /var/mobile/Library/Mail/Drafts.
  void saveDraft();
  /// Keeps nothing.
  void cancel();
  /// As `cancel`, but asks first what is to become of what the user wrote.
  void askToCancel();
  /// Does not cancel after all.
  void keepWriting() { isAsking_ = false; }
  /// @}

  /// Whether the user edited anything, and may want to keep it.
  bool isChanged() const { return isChanged_; }

  /// Whether the user is being asked what is to become of the mail.
  bool isAsking() const { return isAsking_; }

  /// As it is written so far.
  MimeMessage message;

  /// Who is told of the outcome; may be null.
  platform::MFMailComposeViewControllerDelegate* delegate = nullptr;

 private:
  void change(std::string& text, std::string edited);
  void store(const std::string& folder, platform::MFMailComposeResult result);
  void finish(platform::MFMailComposeResult result, const platform::NSError& error);

  bool isChanged_ = false;
  bool isAsking_ = false;
  bool isFinished_ = false;
};

}  // namespace desktop
