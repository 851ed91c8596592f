#include "settings/cli/Rows.h"

#include <type_traits>
#include <vector>

#include "desktop/Preferences/SpecifierBody.h"
#include "desktop/UIKit/ControllerState.h"
#include "prefs/Quillmere.h"
#include "settings/Screen.h"
#include "settings/cli/Hands.h"
#include "settings/cli/SubCommand.h"
#include "settings/cli/Words.h"

namespace settings::cli {

using desktop::ActionCell;
using desktop::AnyCell;

namespace {

/// None for a cell that holds no value.
std::optional<Row> rowOf(const std::string& page, AnyCell& cell) {
  return std::visit(
      [&](auto& known) -> std::optional<Row> {
        if constexpr (std::is_constructible_v<Control, decltype(&known)>) {
          if (!known.key().empty()) {
            return Row{page, known.key(), known.label(), &known, known.enabled()};
          }
        }
        return std::nullopt;
      },
      cell);
}

/// The values of the page on top, the one in the bar first.
std::vector<Row> rowsOnTop(Hands& hands) {
  auto& page = hands.pages().top();
  const std::string title = desktop::titleOf(*page.controller);
  std::vector<Row> rows;
  if (auto* knob = Screen(hands.board()).barSwitch()) {
    rows.push_back({title, quillmere::settings::enabledSwitch.key, title, knob});
  }
  for (desktop::Section& section : page.sections) {
    for (AnyCell& cell : section.cells) {
      if (auto row = rowOf(title, cell)) rows.push_back(*std::move(row));
    }
  }
  return rows;
}

/// The rows of the page on top that open another page, and do nothing else.
std::vector<ActionCell> linksOnTop(Hands& hands) {
  std::vector<ActionCell> links;
  for (const desktop::Section& section : hands.pages().top().sections) {
    for (const AnyCell& cell : section.cells) {
      const auto* link = std::get_if<ActionCell>(&cell);
      if (!link) continue;
      const auto& row = *desktop::bodyAs<desktop::SpecifierBody>(link->specifier());
      if (row.detail && row.action.empty()) links.push_back(*link);
    }
  }
  return links;
}

bool visitTop(Hands& hands, const std::function<bool(const Row&)>& visit) {
  for (const Row& row : rowsOnTop(hands)) {
    if (visit(row)) return true;
  }
  return false;
}

}  // namespace

void visitRows(Hands& hands, const std::function<bool(const Row&)>& visit) {
  if (visitTop(hands, visit)) return;
  for (const ActionCell& link : linksOnTop(hands)) {
    link.tap();
    if (hands.pages().pages().size() == 1) continue;  // There is no such page, which was reported.
    if (visitTop(hands, visit)) return;
    hands.pages().pop();
    hands.clearScreen();
  }
}

Row rowWithKey(Hands& hands, const std::string& key) {
  std::optional<Row> found;
  std::vector<std::string> keys;
  visitRows(hands, [&](const Row& row) {
    keys.push_back(row.key);
    if (row.key == key) found = row;
    return found.has_value();
  });
  if (found) return *found;
  // The list of animations is a page of its own.
  keys.emplace_back(quillmere::enabledLottiesKey);
  throw UsageError("there is no setting \"" + key + '"' +
                   suggestion(key, keys, "; there are " + joined(keys)));
}

}  // namespace settings::cli
