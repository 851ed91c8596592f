#include "platform/UIKit/UISwitch.h"

#import <UIKit/UIKit.h>

#include "device/Native.h"

namespace platform {

using device::adopt;
using device::native;

UISwitch UISwitch::init() { return adopt<UISwitch>([[::UISwitch alloc] init]); }

bool UISwitch::isOn() const { return [native(*this) isOn]; }

void UISwitch::setOn(bool on, Animated animated) {
  [native(*this) setOn:on animated:animated == Animated::Yes];
}

void UISwitch::setOnTintColor(const UIColor& color) {
  [native(*this) setOnTintColor:native(color)];
}

}  // namespace platform
