#pragma once

#include "platform/UIKit/Animated.h"
#include "platform/UIKit/UIControl.h"

namespace platform {

/// A switch.
class UISwitch : public UIControl {
 public:
  /// A switch of the system's size, off.
  static UISwitch init();

  /// Its position; off for none.
  bool isOn() const;
  /// Reports nothing to the control's targets.
  void setOn(bool on, Animated animated);
  /// What the switch wears when it is on.
  void setOnTintColor(const UIColor& color);
};

}  // namespace platform
