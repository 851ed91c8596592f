#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

#include "settings/cli/SubCommand.h"
#include "settings/cli/Values.h"
#include "settings/cli/Words.h"

namespace settings::cli {

namespace {

constexpr std::pair<std::string_view, bool> positions[] = {
    {"on", true},  {"off", false}, {"true", true}, {"false", false},
    {"yes", true}, {"no", false},  {"1", true},    {"0", false},
};

std::optional<bool> positionCalled(std::string_view text) {
  for (const auto& [word, on] : positions) {
    if (isSameWord(word, text)) return on;
  }
  return std::nullopt;
}

/// Whether they differ by no more than the arithmetic of stops does.
bool isAt(double stop, double value) {
  return std::abs(stop - value) <= 4 * std::numeric_limits<double>::epsilon() * std::abs(stop);
}

/// Each of these is false for what the control does not take, and then changes nothing.
/// @{
bool put(desktop::SwitchBody* knob, const std::string& text) {
  const auto on = positionCalled(text);
  if (on) knob->toggle(*on, true);
  return on.has_value();
}

bool put(desktop::SwitchCell* cell, const std::string& text) {
  const auto on = positionCalled(text);
  if (on) cell->toggle(*on);
  return on.has_value();
}

bool put(desktop::SliderCell* cell, const std::string& text) {
  const auto value = desktop::SliderCell::number(text);
  return value && isAt(cell->nearestStop(*value), *value) && cell->slide(*value);
}

bool put(desktop::SegmentCell* cell, const std::string& text) {
  const nlohmann::json offered = describe(cell).bounds;
  // What is stored comes first, should it be another segment's title.
  for (const char* name : {"values", "titles"}) {
    const auto found = std::ranges::find_if(
        offered[name], [&](const auto& each) { return isSameWord(plain(each), text); });
    if (found == offered[name].end()) continue;
    return cell->select(static_cast<std::size_t>(found - offered[name].begin()));
  }
  return false;
}

bool put(desktop::ColorCell* cell, const std::string& text) {
  const auto color = desktop::HexColor::parseWeb(text);
  const bool namesAlpha = text.size() == sizeof "#rrggbbaa" - 1;
  if (!color || (namesAlpha && !cell->offersAlpha())) return false;
  cell->pick(*color);
  return true;
}
/// @}

/// What the control takes. Here, other than in a list, whole numbers need to be told.
std::string offered(const Control& control) {
  const Description about = describe(control);
  return about.takes + (about.bounds.value("step", nlohmann::json()) == 1 ? " in steps of 1" : "");
}

}  // namespace

void change(const Row& row, const std::string& text) {
  if (!row.enabled) throw std::runtime_error(row.key + " is disabled");
  if (std::visit([&](auto* known) { return put(known, text); }, row.control)) return;
  throw UsageError(row.key + " takes " + offered(row.control) + ", and not \"" + text + '"');
}

}  // namespace settings::cli
