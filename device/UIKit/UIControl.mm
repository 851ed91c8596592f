#include "platform/UIKit/UIControl.h"

#import <UIKit/UIKit.h>

#include "device/Controller.h"
#include "device/Native.h"

namespace platform {

using device::native;

static_assert(static_cast<::UIControlEvents>(UIControlEvents::TouchUpInside) ==
              ::UIControlEventTouchUpInside);
static_assert(static_cast<::UIControlEvents>(UIControlEvents::ValueChanged) ==
              ::UIControlEventValueChanged);

void UIControl::addTarget(UIViewController& target, SEL action, UIControlEvents events) {
  [native(*this) addTarget:native(target)
                    action:device::selector(action)
          forControlEvents:static_cast<::UIControlEvents>(events)];
}

}  // namespace platform
