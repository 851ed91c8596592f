#include "platform/UIKit/UIColor.h"

#import <UIKit/UIKit.h>

#include "device/Native.h"

namespace platform {

using device::handle;
using device::native;

UIColor UIColor::colorWithRed(double red, double green, double blue, double alpha) {
  return handle<UIColor>([::UIColor colorWithRed:red green:green blue:blue alpha:alpha]);
}

UIColor UIColor::whiteColor() { return handle<UIColor>([::UIColor whiteColor]); }

UIColor UIColor::clearColor() { return handle<UIColor>([::UIColor clearColor]); }

platform::CGColor UIColor::CGColor() const {
  return handle<platform::CGColor>((__bridge id)[native(*this) CGColor]);
}

}  // namespace platform
