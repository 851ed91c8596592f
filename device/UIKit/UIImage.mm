#include "platform/UIKit/UIImage.h"

#import <UIKit/UIKit.h>

#include "device/CoreGraphics/Geometry.h"
#include "device/Native.h"
#include "device/Paths.h"

namespace platform {

using device::handle;
using device::native;

static_assert(long(UIImageRenderingMode::Automatic) == ::UIImageRenderingModeAutomatic);
static_assert(long(UIImageRenderingMode::AlwaysOriginal) == ::UIImageRenderingModeAlwaysOriginal);
static_assert(long(UIImageRenderingMode::AlwaysTemplate) == ::UIImageRenderingModeAlwaysTemplate);

UIImage UIImage::imageWithContentsOfFile(const NSString& path) {
  return handle<UIImage>([::UIImage imageWithContentsOfFile:device::resolved(path)]);
}

UIImage UIImage::imageWithRenderingMode(UIImageRenderingMode mode) const {
  return handle<UIImage>(
      [native(*this) imageWithRenderingMode:static_cast<::UIImageRenderingMode>(mode)]);
}

void UIImage::drawInRect(const CGRect& rect) const { [native(*this) drawInRect:native(rect)]; }

}  // namespace platform
