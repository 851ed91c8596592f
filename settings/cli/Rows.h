#pragma once

#include <functional>
#include <optional>
#include <string>
#include <variant>

#include "desktop/Preferences/Cells.h"
#include "desktop/UIKit/SwitchBody.h"

namespace settings::cli {

class Hands;

/// What holds a value: a row, or the switch in the bar.
using Control = std::variant<desktop::SwitchBody*, desktop::SwitchCell*, desktop::SliderCell*,
                             desktop::SegmentCell*, desktop::ColorCell*>;

/// A value that a page offers.
struct Row {
  std::string page;  ///< The page's title.
  std::string key;
  std::string label;
  /// Valid as long as the page is on top.
  Control control;
  bool enabled = true;
};

/// Opens every page that a row of the first one leads to, in order, and hands over all values; goes
/// no further once `visit` answers true, so that the row's page is on top then.
void visitRows(Hands& hands, const std::function<bool(const Row&)>& visit);

/// Finds the row with that key, and leaves its page on top. Throws `UsageError` when there is none,
/// with what there is instead.
Row rowWithKey(Hands& hands, const std::string& key);

}  // namespace settings::cli
