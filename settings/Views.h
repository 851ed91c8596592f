#pragma once

#include <string>

#include "desktop/UIKit/SwitchBody.h"
#include "platform/UIKit/UIView.h"
#include "settings/Pictures.h"
#include "settings/Tree.h"

namespace settings {

/// Adds the nodes of a view and of those that it holds; the view's id, null for none.
nlohmann::json addView(Tree& tree, const platform::UIView& view, Pictures& pictures);

/// Adds the node of a switch that stands in the bar; `label` is read out. Its id, null for none.
nlohmann::json addBarSwitch(Tree& tree, const platform::UIView& view, const std::string& label);

/// The id of a view's node.
std::string viewId(const desktop::ViewBody& view);

}  // namespace settings
