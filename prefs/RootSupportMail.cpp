#include "platform/Foundation/NSTask.h"
#include "platform/MobileGestalt/MGCopyAnswer.h"
#include "prefs/QMRoot.h"
#include "prefs/Quillmere.h"

namespace quillmere {

using namespace platform;

namespace {

constexpr const char* supportRecipient = "Orvalen <support@orvalen.com>";

/// Ends in a description of the device, below the empty lines on which the user writes.
NSString messageBody() {
  const NSString type = MGCopyAnswer("ProductType");
  const NSString version = MGCopyAnswer("ProductVersion");
  const NSString build = MGCopyAnswer("BuildVersion");
  return NSString::stringWithFormat("\n\n\nCurrent Device: %@, iOS %@ (%@)",
                                    {type, version, build});
}

/// All that is installed, as the package manager lists it. Blocks until the list is complete.
NSData packageList() {
  NSTask task = NSTask::init();
  task.setLaunchPath("/bin/sh");
  task.setArguments(NSArray::arrayWithObjects({NSString("-c"), NSString("dpkg -l")}));
  task.setStandardOutput(NSPipe::pipe());
  task.launch();
  return task.standardOutput().fileHandleForReading().readDataToEndOfFile();
}

}  // namespace

void QMRoot::presentSupportMailController(const Object&) {
  MFMailComposeViewController composer = MFMailComposeViewController::init();
  composer.setSubject(NSString::stringWithFormat("%@ Support", {NSString(productName)}));
  composer.setToRecipients(NSArray::arrayWithObjects({NSString(supportRecipient)}));
  composer.setMessageBody(messageBody(), IsHTML::No);
  composer.addAttachmentData(packageList(), "text/plain", "dpkgl.txt");
  navigationController().presentViewController(composer, Animated::Yes);
  composer.setMailComposeDelegate(*this);
}

void QMRoot::didFinishWithResult(const MFMailComposeViewController&, MFMailComposeResult,
                                 const NSError&) {
  dismissViewController(Animated::Yes);
}

}  // namespace quillmere
