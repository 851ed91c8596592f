#pragma once

#include "platform/UIKit/UIView.h"

namespace platform {

/// The number is UIKit's.
enum class UIBlurEffectStyle : long { Regular = 4 };

/// A blur of what lies below a view.
class UIBlurEffect : public Object {
 public:
  static UIBlurEffect effectWithStyle(UIBlurEffectStyle style);
};

/// A view that shows what lies below it through an effect.
class UIVisualEffectView : public UIView {
 public:
  static UIVisualEffectView initWithEffect(const UIBlurEffect& effect);
};

}  // namespace platform
