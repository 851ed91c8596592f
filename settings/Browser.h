#pragma once

#include <string>

namespace settings {

/// Whether there is a display to open a browser on (X11's DISPLAY or WAYLAND_DISPLAY).
bool hasDisplay();

/// Asks the desktop to open the address (xdg-open), and says so on standard error when it cannot.
void openBrowser(std::string address);

}  // namespace settings
