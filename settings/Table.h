#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "desktop/UIKit/TableBody.h"
#include "settings/Tree.h"
#include "settings/Viewport.h"

namespace settings {

/// Adds the nodes of a table, with the cells of the rows in view; the table's id.
std::string addTable(Tree& tree, desktop::TableBody& table, const Viewport& viewport);

/// A row of a table, or a button of that row.
struct TableTarget {
  enum class Part { Row, Control, Confirm };
  platform::NSIndexPath path;
  Part part;
};

/// What the tree calls `id`; none when that is no row of the table, or no button that the row has.
std::optional<TableTarget> tableTarget(desktop::TableBody& table, std::string_view id);

}  // namespace settings
