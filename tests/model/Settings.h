#pragma once

#include <optional>
#include <span>
#include <string>

#include "tests/model/Store.h"

namespace model {

/// A value row: on which page it stands, and what it should show of what is stored.
struct Setting {
  enum class Control { Switch, Slider, Segments, Color };

  const char* page;
  const char* key;
  Control control;
  double initial = 0;  ///< A slider's default and ends.
  double min = 0;
  double max = 0;

  /// What the row shows of a stored value, or of none.
  std::string shown(const std::optional<Item>& stored) const;
};

/// All value rows of all pages.
std::span<const Setting> settings();

/// Whether a stored value counts as yes; `otherwise` without one.
bool isYes(const std::optional<Item>& stored, bool otherwise);

}  // namespace model
