#include "platform/UIKit/UINavigationController.h"

#import <UIKit/UIKit.h>

#include "device/Controller.h"
#include "device/Native.h"

namespace platform {

using device::native;
using device::object;

void UINavigationController::pushViewController(std::shared_ptr<UIViewController> controller,
                                                Animated animated) {
  [native(*this) pushViewController:controller ? native(*controller) : nil
                           animated:animated == Animated::Yes];
}

void UINavigationController::presentViewController(const Object& controller, Animated animated) {
  // The platform raises for none, which a mail's composer is where no mail can be sent.
  if (!controller) return;
  [native(*this) presentViewController:object(controller)
                              animated:animated == Animated::Yes
                            completion:nil];
}

}  // namespace platform
