#pragma once

#include <optional>
#include <string_view>

#include "desktop/Preferences/Cells.h"
#include "desktop/SpringBoard.h"
#include "desktop/UIKit/SwitchBody.h"
#include "desktop/UIKit/TableBody.h"
#include "settings/Pictures.h"
#include "settings/Resource.h"
#include "settings/Tree.h"
#include "settings/Viewport.h"

namespace settings {

/// What the tree calls the banner, which a tap puts away.
inline constexpr std::string_view bannerId = "banner";

/// The address at which the page finds the message that it will get first from its connection, to
/// draw it while the connection is made.
inline constexpr std::string_view screenAddress = "screen.json";

/// The screen of the stand-in phone, as the browser draws it.
class Screen {
 public:
  explicit Screen(desktop::SpringBoard& board) : board_(board) {}

  /// What is to be seen now by a browser with that in view; pictures that are new are noted.
  Tree tree(const Viewport& viewport, Pictures& pictures) const;

  /// The file that what is to be seen has at that address: the first message, one of the pictures,
  /// an attachment or a picture of the bundle; none when there is none.
  std::optional<Resource> file(std::string_view address, Pictures& pictures) const;

  /// @name What of the page on top the tree calls `id`. Null when it is not, or no longer, on the
  /// screen.
  /// @{
  desktop::AnyCell* cell(std::string_view id) const;
  desktop::SwitchBody* barSwitch(std::string_view id) const;
  /// The page's table, by the page's id.
  desktop::TableBody* scroller(std::string_view id) const;
  /// @}

  /// The table that fills the page on top; null when it has none.
  desktop::TableBody* table() const;

  /// The switch in the bar of the page on top; null when it has none.
  desktop::SwitchBody* barSwitch() const;

  /// Whether `id` is the back button of the page on top.
  bool isBackButton(std::string_view id) const;

 private:
  const desktop::NavigationController::Page* top() const;

  desktop::SpringBoard& board_;
};

}  // namespace settings
