#include "platform/MessageUI/MFMailComposeViewController.h"

#import <MessageUI/MessageUI.h>

#include "device/Controller.h"
#include "device/Native.h"

namespace platform {

using device::native;

static_assert(long(MFMailComposeResult::Cancelled) == ::MFMailComposeResultCancelled);
static_assert(long(MFMailComposeResult::Saved) == ::MFMailComposeResultSaved);
static_assert(long(MFMailComposeResult::Sent) == ::MFMailComposeResultSent);
static_assert(long(MFMailComposeResult::Failed) == ::MFMailComposeResultFailed);

MFMailComposeViewController MFMailComposeViewController::init() {
  return device::adopt<MFMailComposeViewController>([[::MFMailComposeViewController alloc] init]);
}

void MFMailComposeViewController::setSubject(const NSString& subject) {
  [native(*this) setSubject:native(subject)];
}

void MFMailComposeViewController::setToRecipients(const NSArray& recipients) {
  [native(*this) setToRecipients:native(recipients)];
}

void MFMailComposeViewController::setMessageBody(const NSString& body, IsHTML isHTML) {
  [native(*this) setMessageBody:native(body) isHTML:isHTML == IsHTML::Yes];
}

void MFMailComposeViewController::addAttachmentData(const NSData& data, const NSString& mimeType,
                                                    const NSString& fileName) {
  [native(*this) addAttachmentData:native(data)
                          mimeType:native(mimeType)
                          fileName:native(fileName)];
}

void MFMailComposeViewController::setMailComposeDelegate(
    MFMailComposeViewControllerDelegate& delegate) {
  [native(*this)
      setMailComposeDelegate:(id<MFMailComposeViewControllerDelegate>)device::controllerBehind(
                                 delegate)];
}

}  // namespace platform
