#pragma once

#include <stdexcept>
#include <string_view>

#include "desktop/UIKit/NavigationController.h"

namespace settings {

/// A touch that makes no sense: malformed, or on something that is not on the screen. `what()` is
/// the reason for the page.
class RefusedTouch : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Carries out a touch, a JSON message from the page (docs/protocol.md lists them). Throws
/// `RefusedTouch`.
void touch(desktop::NavigationController& navigation, std::string_view message);

}  // namespace settings
