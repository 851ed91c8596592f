#include "desktop/UIKit/ColorBody.h"
#include "tests/support/DesktopState.h"

/// The animation list: what it shows, its table's callbacks, and the hands on it.
namespace support {

using desktop::bodyAs;
using desktop::textOf;
using platform::NSIndexPath;

namespace {

NSIndexPath pathOf(ListPosition row) { return {row.section, row.row}; }

}  // namespace

std::vector<ListSection> Driver::list() {
  desktop::TableBody& table = state_->table();
  std::vector<ListSection> sections;
  for (std::size_t section = 0; section < table.sections().size(); ++section) {
    ListSection& shown = sections.emplace_back(table.sections()[section].title);
    for (std::size_t row = 0; row < table.sections()[section].rows; ++row) {
      shown.rows.push_back(cell({section, row}).text);
    }
  }
  return sections;
}

CellFacts Driver::cell(ListPosition row) {
  const auto& cell = *bodyAs<desktop::TableCellBody>(state_->table().cell(pathOf(row)));
  const auto& label = *bodyAs<desktop::LabelBody>(cell.textLabel);
  return {textOf(label.text), desktop::webColor(label.textColor)};
}

ListAnswers Driver::answersFor(ListPosition row) {
  const platform::UITableView table = state_->tableHandle();
  auto& source = *state_->table().dataSource;
  auto& delegate = *state_->table().delegate;
  const NSIndexPath path = pathOf(row);
  return {source.numberOfSectionsInTableView(table),
          textOf(source.titleForHeaderInSection(table, row.section)),
          source.numberOfRowsInSection(table, row.section),
          source.canEditRowAtIndexPath(table, path),
          source.canMoveRowAtIndexPath(table, path),
          static_cast<long>(delegate.editingStyleForRowAtIndexPath(table, path)),
          delegate.shouldIndentWhileEditingRowAtIndexPath(table, path)};
}

ListPosition Driver::dropTarget(ListPosition source, ListPosition proposed) {
  const NSIndexPath target = state_->table().delegate->targetIndexPathForMoveFromRowAtIndexPath(
      state_->tableHandle(), pathOf(source), pathOf(proposed));
  return {target.section, target.row};
}

void Driver::commit(long editingStyle, ListPosition row) {
  const auto style = static_cast<platform::UITableViewCellEditingStyle>(editingStyle);
  state_->table().dataSource->commitEditingStyle(state_->tableHandle(), style, pathOf(row));
}

void Driver::move(ListPosition source, ListPosition destination) {
  state_->table().dataSource->moveRowAtIndexPath(state_->tableHandle(), pathOf(source),
                                                 pathOf(destination));
}

void Driver::insert(std::size_t row) { state_->table().tapControl({1, row}); }

void Driver::remove(std::size_t row) {
  state_->table().tapControl({0, row});
  state_->table().confirm();
}

void Driver::drag(std::size_t section, std::size_t row, std::size_t toSection, std::size_t toRow) {
  state_->table().drag({section, row}, {toSection, toRow});
}

}  // namespace support
