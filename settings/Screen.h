#pragma once

#include <string_view>

#include "desktop/Preferences/Cells.h"
#include "desktop/UIKit/NavigationController.h"
#include "settings/Tree.h"

namespace settings {

/// The screen of the stand-in phone, as the browser draws it.
class Screen {
 public:
  explicit Screen(desktop::NavigationController& navigation) : navigation_(navigation) {}

  /// What is to be seen now.
  Tree tree() const;

  /// The control that the tree calls `id`; null when it is not, or no longer, on the screen.
  desktop::AnyCell* cell(std::string_view id);

  /// Whether `id` is the back button of the page on top.
  bool isBackButton(std::string_view id) const;

 private:
  desktop::NavigationController& navigation_;
};

}  // namespace settings
