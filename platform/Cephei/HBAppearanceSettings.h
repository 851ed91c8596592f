#pragma once

#include "platform/Object.h"
#include "platform/UIKit/UIColor.h"

namespace platform {

/// When a page shows its title large; the numbers are Cephei's.
enum class HBAppearanceSettingsLargeTitleStyle : unsigned long {
  RootOnly = 0,
  Always = 1,
  Never = 2,
};

/// The look of a settings page. What is not set, or set to none, is the system's.
class HBAppearanceSettings : public Object {
 public:
  /// A new object in which nothing is set.
  static HBAppearanceSettings init();

  /// Of switches, sliders and the like.
  void setTintColor(const UIColor& color);
  void setNavigationBarTitleColor(const UIColor& color);
  /// Of the bar's items: the back button, say.
  void setNavigationBarTintColor(const UIColor& color);
  /// Of the lines between rows.
  void setTableViewCellSeparatorColor(const UIColor& color);
  void setNavigationBarBackgroundColor(const UIColor& color);
  void setTableViewCellTextColor(const UIColor& color);
  /// Whether content shows through the bar.
  void setTranslucentNavigationBar(bool translucent);
  void setLargeTitleStyle(HBAppearanceSettingsLargeTitleStyle style);
};

}  // namespace platform
