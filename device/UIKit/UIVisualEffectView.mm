#include "platform/UIKit/UIVisualEffectView.h"

#import <UIKit/UIKit.h>

#include "device/Native.h"

namespace platform {

using device::adopt;
using device::handle;
using device::native;

static_assert(long(UIBlurEffectStyle::Regular) == ::UIBlurEffectStyleRegular);

UIBlurEffect UIBlurEffect::effectWithStyle(UIBlurEffectStyle style) {
  return handle<UIBlurEffect>(
      [::UIBlurEffect effectWithStyle:static_cast<::UIBlurEffectStyle>(style)]);
}

UIVisualEffectView UIVisualEffectView::initWithEffect(const UIBlurEffect& effect) {
  return adopt<UIVisualEffectView>([[::UIVisualEffectView alloc] initWithEffect:native(effect)]);
}

}  // namespace platform
