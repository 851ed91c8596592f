#include "platform/UIKit/UIViewController.h"

#import <objc/runtime.h>

#include "device/Controller.h"
#include "device/Native.h"

namespace platform {

using device::handle;
using device::native;
using device::object;

UIViewController::UIViewController() = default;
UIViewController::~UIViewController() = default;

std::shared_ptr<UIViewController> UIViewController::make(const NSString& className) {
  return device::shared([[objc_getClass(className.UTF8String().c_str()) alloc] init]);
}

bool UIViewController::init() {
  device::setOwner(*this, [native(*this) initAsSuperclass]);
  return native(*this) != nil;
}

void UIViewController::viewDidLoad() { [native(*this) viewDidLoadAsSuperclass]; }

void UIViewController::viewWillAppear(Animated animated) {
  [native(*this) viewWillAppearAsSuperclass:animated == Animated::Yes];
}

void UIViewController::viewDidAppear(Animated animated) {
  [native(*this) viewDidAppearAsSuperclass:animated == Animated::Yes];
}

UIView UIViewController::view() { return handle<UIView>([native(*this) view]); }

UINavigationItem UIViewController::navigationItem() const {
  return handle<UINavigationItem>([native(*this) navigationItem]);
}

UINavigationController UIViewController::navigationController() const {
  return handle<UINavigationController>([native(*this) navigationController]);
}

void UIViewController::presentViewController(const Object& controller, Animated animated) {
  if (!controller) return;
  [native(*this) presentViewController:object(controller)
                              animated:animated == Animated::Yes
                            completion:nil];
}

void UIViewController::dismissViewController(Animated animated) {
  [native(*this) dismissViewControllerAnimated:animated == Animated::Yes completion:nil];
}

}  // namespace platform
