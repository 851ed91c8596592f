#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "desktop/SpringBoard.h"
#include "platform/UIKit/UIAlertController.h"
#include "settings/Resource.h"
#include "settings/Tree.h"

namespace settings {

/// Adds the nodes of what lies over all pages, or of the restart that is under way; its id, null
/// when there is nothing.
nlohmann::json addOverlay(Tree& tree, desktop::SpringBoard& board);

/// Answers the alert that lies over all pages with one of its actions.
void answerAlert(desktop::NavigationController& navigation, const platform::UIAlertAction& action);

/// Taps the button that the tree calls `id`; false when there is no such button.
bool tapOverlay(desktop::NavigationController& navigation, std::string_view id);

/// Puts text into the field that the tree calls `id`; false when there is no such field.
bool typeIntoOverlay(desktop::NavigationController& navigation, std::string_view id,
                     const std::string& text);

/// The attachment at that address; none when there is none.
std::optional<Resource> attachment(desktop::NavigationController& navigation,
                                   std::string_view address);

}  // namespace settings
