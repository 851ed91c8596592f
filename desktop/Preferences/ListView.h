#pragma once

#include <optional>
#include <string>
#include <vector>

#include "desktop/Preferences/Cells.h"
#include "platform/Foundation/NSArray.h"

namespace desktop {

/// The rows under one group header.
struct Section {
  std::string title;
  /// None when the group has no footer.
  std::optional<std::string> footer;
  std::vector<AnyCell> cells;
};

/// The rows of a page, drawn: groups become sections, and every value row asks for its value.
std::vector<Section> drawList(const platform::NSArray& specifiers);

}  // namespace desktop
