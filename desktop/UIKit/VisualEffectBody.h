#pragma once

#include "desktop/UIKit/ViewBody.h"
#include "platform/UIKit/UIVisualEffectView.h"

namespace desktop {

class BlurEffectBody : public Body {
 public:
  std::string_view className() const override { return "UIBlurEffect"; }
};

class VisualEffectBody : public ViewBody {
 public:
  std::string_view className() const override { return "UIVisualEffectView"; }
};

}  // namespace desktop
