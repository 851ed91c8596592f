#include "platform/UIKit/UIFont.h"

#import <UIKit/UIKit.h>

#include "device/Native.h"

namespace platform {

using device::handle;

UIFont UIFont::boldSystemFontOfSize(double size) {
  return handle<UIFont>([::UIFont boldSystemFontOfSize:size]);
}

}  // namespace platform
