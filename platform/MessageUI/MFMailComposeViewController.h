#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSData.h"
#include "platform/Foundation/NSError.h"
#include "platform/Foundation/NSString.h"
#include "platform/Object.h"

namespace platform {

class MFMailComposeViewControllerDelegate;

/// What became of a mail; the numbers are MessageUI's.
enum class MFMailComposeResult : long { Cancelled = 0, Saved = 1, Sent = 2, Failed = 3 };

/// Whether a mail's text is HTML.
enum class IsHTML : bool { No = false, Yes = true };

/// The system's screen on which the user writes a mail.
class MFMailComposeViewController : public Object {
 public:
  /// A new composer; none when the device cannot send mail.
  static MFMailComposeViewController init();

  void setSubject(const NSString& subject);
  /// Strings: addresses, with or without a name (RFC 5322, 3.4).
  void setToRecipients(const NSArray& recipients);
  void setMessageBody(const NSString& body, IsHTML isHTML);
  void addAttachmentData(const NSData& data, const NSString& mimeType, const NSString& fileName);

  /// Who is told of the outcome; not retained.
  void setMailComposeDelegate(MFMailComposeViewControllerDelegate& delegate);
};

class MFMailComposeViewControllerDelegate {
 public:
  /// `mailComposeController:didFinishWithResult:error:`: the user is done; the composer is still
  /// on the screen. `error` is none unless the result is `Failed`.
  virtual void didFinishWithResult(const MFMailComposeViewController& controller,
                                   MFMailComposeResult result, const NSError& error) = 0;

 protected:
  ~MFMailComposeViewControllerDelegate() = default;
};

}  // namespace platform
