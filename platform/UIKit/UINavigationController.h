#pragma once

#include <memory>

#include "platform/Object.h"
#include "platform/UIKit/Animated.h"

namespace platform {

class UIViewController;

/// The stack of pages.
class UINavigationController : public Object {
 public:
  /// Puts a page on top of the stack, which keeps it until the user leaves it. Raises
  /// `NSInvalidArgumentException` for null.
  void pushViewController(std::shared_ptr<UIViewController> controller, Animated animated);

  /// Shows one of the platform's own screens (an alert, a composer) over all pages. Nothing happens
  /// for none.
  void presentViewController(const Object& controller, Animated animated);
};

}  // namespace platform
