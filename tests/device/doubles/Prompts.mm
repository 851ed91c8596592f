#import <MessageUI/MessageUI.h>
#import <OrvalenPrefs/OrvalenWelcome.h>
#import <UIKit/UIKit.h>

#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/OrvalenPrefs/OrvalenWelcome.h"
#include "platform/UIKit/UIAlertController.h"
#include "platform/UIKit/UIBarButtonItem.h"
#include "tests/device/doubles/Bridge.h"
#include "tests/device/doubles/Double.h"

using doubles::handle;
using doubles::initialised;
using doubles::object;

@implementation UIAlertAction

#include "tests/device/doubles/Dealloc.inc"
+ (instancetype)actionWithTitle:(NSString*)title
                          style:(UIAlertActionStyle)style
                        handler:(void (^)(UIAlertAction*))handler {
  std::function<void()> chosen;
  if (handler) {
    chosen = [kept = doubles::keep(handler)] { ((void (^)(UIAlertAction*))kept.get())(nil); };
  }
  return object(platform::UIAlertAction::actionWithTitle(
      handle<platform::NSString>(title), platform::UIAlertActionStyle(style), chosen));
}

@end

@implementation UIAlertController

+ (instancetype)alertControllerWithTitle:(NSString*)title
                                 message:(NSString*)message
                          preferredStyle:(UIAlertControllerStyle)style {
  return object(platform::UIAlertController::alertControllerWithTitle(
      handle<platform::NSString>(title), handle<platform::NSString>(message),
      platform::UIAlertControllerStyle(style)));
}
- (void)addAction:(UIAlertAction*)action {
  handle<platform::UIAlertController>(self).addAction(handle<platform::UIAlertAction>(action));
}

@end

@implementation UIBarItem
#include "tests/device/doubles/Dealloc.inc"
- (void)setTitle:(NSString*)title {
  handle<platform::UIBarButtonItem>(self).setTitle(handle<platform::NSString>(title));
}
@end

@implementation UIBarButtonItem
- (instancetype)initWithCustomView:(UIView*)view {
  return initialised(self,
                     platform::UIBarButtonItem::initWithCustomView(handle<platform::UIView>(view)));
}
@end

@implementation MFMailComposeViewController

static platform::MFMailComposeViewController own(MFMailComposeViewController* self) {
  return handle<platform::MFMailComposeViewController>(self);
}

- (instancetype)init {
  return initialised(self, platform::MFMailComposeViewController::init());
}
- (void)setSubject:(NSString*)subject {
  own(self).setSubject(handle<platform::NSString>(subject));
}
- (void)setToRecipients:(NSArray*)recipients {
  own(self).setToRecipients(handle<platform::NSArray>(recipients));
}
- (void)setMessageBody:(NSString*)body isHTML:(BOOL)isHTML {
  own(self).setMessageBody(handle<platform::NSString>(body), platform::IsHTML(bool(isHTML)));
}
- (void)addAttachmentData:(NSData*)data mimeType:(NSString*)type fileName:(NSString*)name {
  own(self).addAttachmentData(handle<platform::NSData>(data), handle<platform::NSString>(type),
                              handle<platform::NSString>(name));
}
- (void)setMailComposeDelegate:(id<MFMailComposeViewControllerDelegate>)delegate {
  auto& bridge = doubles::bridgeOf((UIViewController*)delegate);
  own(self).setMailComposeDelegate(
      dynamic_cast<platform::MFMailComposeViewControllerDelegate&>(bridge));
}

@end

@implementation OrvalenWelcome

static platform::OrvalenWelcome own(OrvalenWelcome* self) {
  return handle<platform::OrvalenWelcome>(self);
}
static platform::NSString text(NSString* self) { return handle<platform::NSString>(self); }

- (instancetype)init {
  return initialised(self, platform::OrvalenWelcome::init());
}
- (void)setSubtitleText:(NSString*)value {
  own(self).setSubtitleText(text(value));
}
- (void)setItem_one_title:(NSString*)value {
  own(self).setItem_one_title(text(value));
}
- (void)setItem_one_description:(NSString*)value {
  own(self).setItem_one_description(text(value));
}
- (void)setItem_two_title:(NSString*)value {
  own(self).setItem_two_title(text(value));
}
- (void)setItem_two_description:(NSString*)value {
  own(self).setItem_two_description(text(value));
}
- (void)setItem_three_title:(NSString*)value {
  own(self).setItem_three_title(text(value));
}
- (void)setItem_three_description:(NSString*)value {
  own(self).setItem_three_description(text(value));
}
- (void)setButtonTitle:(NSString*)value {
  own(self).setButtonTitle(text(value));
}
- (void)setButtonCaption:(NSString*)value {
  own(self).setButtonCaption(text(value));
}
- (void)setTitleText:(NSString*)value {
  own(self).setTitleText(text(value));
}
- (void)setPackage_ID:(NSString*)value {
  own(self).setPackage_ID(text(value));
}
- (void)setBundle_Name:(NSString*)value {
  own(self).setBundle_Name(text(value));
}
- (void)setTintColor:(UIColor*)color {
  own(self).setTintColor(handle<platform::UIColor>(color));
}

@end
