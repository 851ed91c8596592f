#pragma once

#include <string>

#include "desktop/Body.h"
#include "platform/UIKit/UIColor.h"

namespace desktop {

/// The look that a page asked for; a colour that was not set is none. Titles are always small.
class AppearanceBody : public Body {
 public:
  std::string_view className() const override { return "HBAppearanceSettings"; }

  platform::UIColor tint;
  platform::UIColor navigationBarTitle;
  platform::UIColor navigationBarTint;
  platform::UIColor navigationBarBackground;
  platform::UIColor cellSeparator;
  platform::UIColor cellText;
  bool translucentNavigationBar = false;
};

}  // namespace desktop
