#pragma once

#include "platform/ObjectiveC/SEL.h"
#include "platform/UIKit/UIView.h"

namespace platform {

class UIViewController;

/// What a control reports; the numbers are UIKit's.
enum class UIControlEvents : unsigned long {
  /// A finger was lifted on the control.
  TouchUpInside = 1 << 6,
  /// Its value was changed by the user.
  ValueChanged = 1 << 12,
};

/// A view that the user operates.
class UIControl : public UIView {
 public:
  /// From now on sends `action` to `target` (not retained) on these events.
  void addTarget(UIViewController& target, SEL action, UIControlEvents events);
};

}  // namespace platform
