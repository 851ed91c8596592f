#include "platform/UIKit/UIVisualEffectView.h"

#include "desktop/Message.h"
#include "desktop/UIKit/VisualEffectBody.h"

namespace platform {

UIBlurEffect UIBlurEffect::effectWithStyle(UIBlurEffectStyle style) {
  return desktop::sendClass("UIBlurEffect", "effectWithStyle:", {static_cast<double>(style)},
                            [] { return desktop::make<UIBlurEffect, desktop::BlurEffectBody>(); });
}

UIVisualEffectView UIVisualEffectView::initWithEffect(const UIBlurEffect& effect) {
  return desktop::sendClass("UIVisualEffectView", "initWithEffect:", {effect}, [] {
    return desktop::make<UIVisualEffectView, desktop::VisualEffectBody>();
  });
}

}  // namespace platform
