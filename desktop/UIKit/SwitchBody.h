#pragma once

#include <string>

#include "desktop/UIKit/ViewBody.h"
#include "platform/UIKit/UISwitch.h"

namespace desktop {

/// Who is told of what a control reports.
struct ControlTarget {
  platform::UIViewController* controller;  ///< Not retained.
  std::string action;
  platform::UIControlEvents events;
};

class SwitchBody : public ViewBody {
 public:
  SwitchBody();

  std::string_view className() const override { return "UISwitch"; }

  /// The user put the switch there and lifted the finger inside of it or not: only then does it
  /// report a touch.
  void toggle(bool position, bool inside);

  bool on = false;
  platform::UIColor onTint;
  std::vector<ControlTarget> targets;

 private:
  void report(platform::UIControlEvents event);
};

}  // namespace desktop
