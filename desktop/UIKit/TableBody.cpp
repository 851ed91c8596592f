#include "desktop/UIKit/TableBody.h"

#include "desktop/UIKit/ControllerState.h"

namespace desktop {

using platform::NSIndexPath;
using platform::UITableViewCell;
using platform::UITableViewCellEditingStyle;

namespace {

constexpr std::string_view scrollSelector = "scrollViewDidScroll:";

/// How many cells are kept for the rows in view; more than the windows of a few browsers hold.
constexpr std::size_t maximumCells = 1000;

}  // namespace

TableCellBody::TableCellBody(std::string identifier)
    : reuseIdentifier(std::move(identifier)), textLabel(make<platform::UILabel, LabelBody>()) {}

platform::UITableView TableBody::handle() {
  retain();
  return platform::Backend::adopt<platform::UITableView>(static_cast<Body*>(this));
}

const std::vector<TableBody::Section>& TableBody::sections() {
  if (sections_) return *sections_;
  std::vector<Section> asked;
  const platform::UITableView self = handle();
  const std::size_t count = dataSource ? dataSource->numberOfSectionsInTableView(self) : 0;
  for (std::size_t section = 0; section < count; ++section) {
    asked.push_back({dataSource->titleForHeaderInSection(self, section).UTF8String(),
                     dataSource->numberOfRowsInSection(self, section)});
  }
  return sections_.emplace(std::move(asked));
}

bool TableBody::contains(const NSIndexPath& path) {
  return path.section < sections().size() && path.row < sections()[path.section].rows;
}

UITableViewCell TableBody::cell(const NSIndexPath& path) {
  const Position position{path.section, path.row};
  if (const auto known = cells_.find(position); known != cells_.end()) return known->second;
  if (cells_.size() >= maximumCells) retireCells();
  return cells_[position] = dataSource->cellForRowAtIndexPath(handle(), path);
}

UITableViewCell TableBody::dequeue(const std::string& identifier) {
  std::vector<UITableViewCell>& free = retired_[identifier];
  if (free.empty()) return {};
  UITableViewCell cell = std::move(free.back());
  free.pop_back();
  return cell;
}

void TableBody::reload() {
  ++reloads_;
  sections_.reset();
  confirming_.reset();
  retireCells();
}

void TableBody::retireCells() {
  retired_.clear();  // What nobody has asked for since is not wanted.
  for (auto& [position, cell] : cells_) {
    const auto* body = bodyAs<TableCellBody>(cell);
    if (body) retired_[body->reuseIdentifier].push_back(cell);
  }
  cells_.clear();
}

UITableViewCellEditingStyle TableBody::editingStyle(const NSIndexPath& path) {
  if (!isEditing || !dataSource->canEditRowAtIndexPath(handle(), path)) {
    return UITableViewCellEditingStyle::None;
  }
  return delegate ? delegate->editingStyleForRowAtIndexPath(handle(), path)
                  : UITableViewCellEditingStyle::Delete;
}

bool TableBody::isMovable(const NSIndexPath& path) {
  return isEditing && dataSource->canMoveRowAtIndexPath(handle(), path);
}

void TableBody::tapControl(const NSIndexPath& path) {
  const UITableViewCellEditingStyle style = editingStyle(path);
  cancelConfirmation();
  if (style == UITableViewCellEditingStyle::Delete) confirming_ = path;
  if (style == UITableViewCellEditingStyle::Insert) commit(style, path);
}

void TableBody::confirm() {
  if (!confirming_) return;
  commit(UITableViewCellEditingStyle::Delete, *std::exchange(confirming_, std::nullopt));
}

void TableBody::commit(UITableViewCellEditingStyle style, const NSIndexPath& path) {
  dataSource->commitEditingStyle(handle(), style, path);
}

void TableBody::drag(const NSIndexPath& source, const NSIndexPath& proposed) {
  cancelConfirmation();
  if (!isMovable(source)) return;
  const NSIndexPath target =
      delegate ? delegate->targetIndexPathForMoveFromRowAtIndexPath(handle(), source, proposed)
               : proposed;
  dataSource->moveRowAtIndexPath(handle(), source, target);
}

void TableBody::scroll(double y) {
  contentOffset.y = y;
  if (scrollDelegate && listensToScrolling(*scrollDelegate)) {
    perform(*scrollDelegate, scrollSelector, handle());
  }
}

bool listensToScrolling(const platform::UIViewController& controller) {
  return answers(controller, scrollSelector);
}

}  // namespace desktop
