#import <MessageUI/MessageUI.h>

#include "device/Native.h"
#include "device/controllers/Page.h"
#include "platform/MessageUI/MFMailComposeViewController.h"

QUILLMERE_PAGE(QMRoot)

@interface QMRoot () <MFMailComposeViewControllerDelegate>
@property(nonatomic, retain) UILabel* titleLabel;
@property(nonatomic, retain) UIImageView* iconView;
@property(nonatomic, retain) UISwitch* enableSwitch;
@end

@implementation QMRoot
#include "device/controllers/Page.inc"

- (void)lottiesList {
  device::call(self, _cmd);
}
- (void)toggleState {
  device::call(self, _cmd);
}
- (void)setEnableSwitchState {
  device::call(self, _cmd);
}
- (void)respring {
  device::call(self, _cmd);
}
- (void)respringAfterEnable {
  device::call(self, _cmd);
}
- (void)resetPreferences {
  device::call(self, _cmd);
}
- (void)presentSupportMailController:(id)sender {
  device::call(self, _cmd, sender);
}
- (void)scrollViewDidScroll:(UIScrollView*)scrollView {
  device::call(self, _cmd, scrollView);
}

QUILLMERE_PROPERTY(UILabel, titleLabel, setTitleLabel)
QUILLMERE_PROPERTY(UIImageView, iconView, setIconView)
QUILLMERE_PROPERTY(UISwitch, enableSwitch, setEnableSwitch)

- (void)mailComposeController:(MFMailComposeViewController*)composer
          didFinishWithResult:(MFMailComposeResult)result
                        error:(NSError*)error {
  dynamic_cast<platform::MFMailComposeViewControllerDelegate&>(*_controller)
      .didFinishWithResult(device::handle<platform::MFMailComposeViewController>(composer),
                           platform::MFMailComposeResult(result),
                           device::handle<platform::NSError>(error));
}

@end
