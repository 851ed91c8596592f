#include "platform/UIKit/UIGraphics.h"

#import <UIKit/UIKit.h>

#include "device/CoreGraphics/Geometry.h"
#include "device/Native.h"

namespace platform {

using device::handle;
using device::native;

void UIGraphicsBeginImageContextWithOptions(const CGSize& size, Opaque opaque, double scale) {
  ::UIGraphicsBeginImageContextWithOptions(native(size), opaque == Opaque::Yes, scale);
}

CGContext UIGraphicsGetCurrentContext() {
  return handle<CGContext>((__bridge id)::UIGraphicsGetCurrentContext());
}

UIImage UIGraphicsGetImageFromCurrentImageContext() {
  return handle<UIImage>(::UIGraphicsGetImageFromCurrentImageContext());
}

void UIGraphicsEndImageContext() { ::UIGraphicsEndImageContext(); }

}  // namespace platform
