#pragma once

#include <stdexcept>
#include <string_view>

#include "desktop/SpringBoard.h"
#include "settings/Viewport.h"

namespace settings {

/// A touch that makes no sense: malformed, or on something that is not on the screen. `what()` is
/// the reason for the page.
class RefusedTouch : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Leaves the page on top when a list or dictionary that it holds is not what is stored by now, by
/// another program's hand, because it could not be read before or because it was not stored: acting
/// on the page would undo that. Whether it did.
bool leaveOutdatedPage(desktop::SpringBoard& board);

/// Carries out a touch, a JSON message from a page (docs/protocol.md lists them). `viewport` is
/// that page's own. Throws `RefusedTouch`.
void touch(desktop::SpringBoard& board, Viewport& viewport, std::string_view message);

}  // namespace settings
