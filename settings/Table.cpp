#include "settings/Table.h"

#include <algorithm>
#include <charconv>

#include "desktop/Foundation/Values.h"
#include "desktop/UIKit/ColorBody.h"
#include "settings/Views.h"

namespace settings {

using desktop::TableBody;
using nlohmann::json;
using platform::NSIndexPath;
using platform::UITableViewCellEditingStyle;
using Part = TableTarget::Part;

namespace {

/// The height of a row that does not say otherwise, in points.
constexpr double rowHeight = 44;

/// The longest label that is sent whole, in bytes; a file's name has 255 at most.
constexpr std::size_t maximumLabel = 1024;

constexpr std::string_view controlEnding = ".control";
constexpr std::string_view confirmEnding = ".confirm";

/// What the ids of all rows begin with until the next reload: a touch that was meant for the row
/// that stood there before must not reach the one that stands there now.
std::string rowPrefix(const TableBody& table) {
  return viewId(table) + ".load" + std::to_string(table.reloads()) + ".row";
}

std::string rowId(const TableBody& table, const NSIndexPath& path) {
  return rowPrefix(table) + std::to_string(path.section) + "." + std::to_string(path.row);
}

constexpr const char* nameOf(UITableViewCellEditingStyle style) {
  switch (style) {
    case UITableViewCellEditingStyle::Delete:
      return "delete";
    case UITableViewCellEditingStyle::Insert:
      return "insert";
    default:
      return "none";
  }
}

/// What a row shows of a text. The names that are stored may be megabytes long, and all rows may
/// share one such text, which each message would hold as often.
std::string labelOf(std::string_view text) {
  if (text.size() <= maximumLabel) return std::string(text);
  std::size_t end = maximumLabel;
  while ((text[end] & 0xc0) == 0x80) --end;  // Not within a letter.
  return std::string(text.substr(0, end)) + "…";
}

json cellNode(TableBody& table, const NSIndexPath& path) {
  const std::string id = rowId(table, path);
  const auto style = table.editingStyle(path);
  const bool isConfirming = table.confirming() == path;
  json node = {{"kind", "cell"},
               {"section", path.section},
               {"row", path.row},
               {"editing", nameOf(style)},
               {"control", nullptr},
               {"confirm", nullptr},
               {"movable", table.isMovable(path)}};
  if (style != UITableViewCellEditingStyle::None) node["control"] = id + std::string(controlEnding);
  if (isConfirming) node["confirm"] = id + std::string(confirmEnding);
  if (const auto* cell = desktop::bodyAs<desktop::TableCellBody>(table.cell(path))) {
    const auto& label = *desktop::bodyAs<desktop::LabelBody>(cell->textLabel);
    node["label"] = labelOf(desktop::textIn(label.text).value_or(""));
    node["color"] = desktop::webColor(label.textColor);
  }
  return node;
}

/// Adds those rows of one section that are in view; `begin` and `end` are counted in the section.
void addRows(Tree& tree, json& children, TableBody& table, std::size_t section, std::size_t begin,
             std::size_t end) {
  for (std::size_t row = begin; row < end; ++row) {
    const NSIndexPath path{section, row};
    tree[rowId(table, path)] = cellNode(table, path);
    children.push_back(rowId(table, path));
  }
}

/// The number that stands at the front of `text`, which is cut off.
std::optional<std::size_t> takeNumber(std::string_view& text) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

}  // namespace

std::string addTable(Tree& tree, TableBody& table, const Viewport& viewport) {
  const std::string id = viewId(table);
  const Viewport view = viewport.table == id ? viewport : Viewport();
  json node = {{"kind", "table"},
               {"sections", json::array()},
               {"rowHeight", rowHeight},
               {"separator", desktop::webColor(table.separator)},
               {"children", json::array()}};
  std::size_t before = 0;
  const auto& sections = table.sections();
  for (std::size_t section = 0; section < sections.size(); ++section) {
    const std::size_t rows = sections[section].rows;
    node["sections"].push_back({{"title", sections[section].title}, {"count", rows}});
    // Both ends of the view, as positions in this section.
    const auto within = [&](std::size_t row) { return std::clamp(row, before, before + rows); };
    addRows(tree, node["children"], table, section, within(view.first) - before,
            within(view.first + view.count) - before);
    before += rows;
  }
  tree[id] = std::move(node);
  return id;
}

std::optional<TableTarget> tableTarget(TableBody& table, std::string_view id) {
  const std::string prefix = rowPrefix(table);
  if (!id.starts_with(prefix)) return std::nullopt;
  std::string_view rest = id.substr(prefix.size());
  const auto section = takeNumber(rest);
  if (!section || !rest.starts_with('.')) return std::nullopt;
  rest.remove_prefix(1);
  const auto row = takeNumber(rest);
  if (!row) return std::nullopt;

  const NSIndexPath path{*section, *row};
  // A number may have been written otherwise than the tree does, as in "01".
  if (!table.contains(path) || id != rowId(table, path) + std::string(rest)) return std::nullopt;
  const bool hasControl = table.editingStyle(path) != UITableViewCellEditingStyle::None;
  if (rest.empty()) return TableTarget{path, Part::Row};
  if (rest == controlEnding && hasControl) return TableTarget{path, Part::Control};
  if (rest == confirmEnding && table.confirming() == path) return TableTarget{path, Part::Confirm};
  return std::nullopt;
}

}  // namespace settings
