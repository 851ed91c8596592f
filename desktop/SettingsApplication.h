#pragma once

#include <string>

#include "desktop/UIKit/NavigationController.h"

namespace desktop {

/// The stand-in for the Settings application: it finds the bundle by its loader entry and shows
/// its pages.
class SettingsApplication {
 public:
  /// Starts at the page of the loader entry with this label, as the address "prefs:root=LABEL"
  /// does. Throws `std::runtime_error` when the phone has no such entry, or the bundle no such
  /// principal class.
  explicit SettingsApplication(const std::string& label);

  NavigationController navigation;
};

}  // namespace desktop
