#pragma once

#include <nlohmann/json.hpp>

#include "desktop/Preferences/Cells.h"
#include "platform/Cephei/HBAppearanceSettings.h"

namespace settings {

/// The node of a row.
nlohmann::json rowNode(const desktop::AnyCell& cell);

/// The look of a page: its colours, "#rrggbbaa" each, those that it leaves to the system absent,
/// and whether content shows through its bar.
nlohmann::json styleNode(const platform::HBAppearanceSettings& appearance);

}  // namespace settings
