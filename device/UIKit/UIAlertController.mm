#include "platform/UIKit/UIAlertController.h"

#import <UIKit/UIKit.h>

#include "device/Native.h"

namespace platform {

using device::handle;
using device::native;

static_assert(long(UIAlertControllerStyle::ActionSheet) == ::UIAlertControllerStyleActionSheet);
static_assert(long(UIAlertControllerStyle::Alert) == ::UIAlertControllerStyleAlert);
static_assert(long(UIAlertActionStyle::Default) == ::UIAlertActionStyleDefault);
static_assert(long(UIAlertActionStyle::Cancel) == ::UIAlertActionStyleCancel);
static_assert(long(UIAlertActionStyle::Destructive) == ::UIAlertActionStyleDestructive);

UIAlertAction UIAlertAction::actionWithTitle(const NSString& title, UIAlertActionStyle style,
                                             std::function<void()> handler) {
  using Handler = void (^)(::UIAlertAction*);
  return handle<UIAlertAction>([::UIAlertAction
      actionWithTitle:native(title)
                style:static_cast<::UIAlertActionStyle>(style)
              handler:handler ? ^(::UIAlertAction*) { handler(); } : Handler()]);
}

UIAlertController UIAlertController::alertControllerWithTitle(
    const NSString& title, const NSString& message, UIAlertControllerStyle preferredStyle) {
  return handle<UIAlertController>([::UIAlertController
      alertControllerWithTitle:native(title)
                       message:native(message)
                preferredStyle:static_cast<::UIAlertControllerStyle>(preferredStyle)]);
}

void UIAlertController::addAction(const UIAlertAction& action) {
  [native(*this) addAction:native(action)];
}

}  // namespace platform
