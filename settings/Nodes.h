#pragma once

#include <nlohmann/json.hpp>

#include "desktop/Preferences/Cells.h"
#include "platform/Cephei/HBAppearanceSettings.h"

namespace settings {

/// The node of a row.
nlohmann::json rowNode(const desktop::AnyCell& cell);

/// The colours of a page, "#rrggbbaa" each; those that the page leaves to the system are absent.
nlohmann::json styleNode(const platform::HBAppearanceSettings& appearance);

}  // namespace settings
