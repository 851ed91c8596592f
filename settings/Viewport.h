#pragma once

#include <compare>
#include <cstddef>
#include <string>

namespace settings {

/// What of the screen one browser has in view. A page shows all its rows at once; of a table, which
/// may be long, it asks for some.
struct Viewport {
  /// The id of the table that the rows are asked of; any other table shows its first rows.
  std::string table;
  /// The rows, counted over all sections.
  std::size_t first = 0;
  std::size_t count = initialRows;

  auto operator<=>(const Viewport&) const = default;

  static constexpr std::size_t initialRows = 40;
  static constexpr std::size_t maximumRows = 200;
};

}  // namespace settings
