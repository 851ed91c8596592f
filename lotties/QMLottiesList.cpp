#include "lotties/QMLottiesList.h"

#include <algorithm>

#include "prefs/Appearance.h"

namespace quillmere {

using namespace platform;

namespace {

/// The one section that the user orders; all others are taken for the disabled animations.
constexpr std::size_t enabledSection = 0;

}  // namespace

bool QMLottiesList::init() {
  if (!UIViewController::init()) return false;
  navigationItem().setTitle("Lotties");
  buildCatalogue();
  buildTable();
  return true;
}

void QMLottiesList::buildTable() {
  tableView = UITableView::initWithFrame(view().bounds(), UITableViewStyle::Grouped);
  tableView.setDelegate(*this);
  tableView.setDataSource(*this);
  tableView.setSeparatorColor(UIColor::clearColor());
  tableView.setAllowsSelection(false);
  tableView.setEditing(true, Animated::Yes);
  view().addSubview(tableView);
}

void QMLottiesList::edit() {
  if (tableView.isEditing()) {
    editButton.setTitle("Edit");
    tableView.setEditing(false, Animated::Yes);
  } else {
    editButton.setTitle("Done");
    tableView.setEditing(true, Animated::Yes);
  }
  tableView.reloadData();
}

std::size_t QMLottiesList::numberOfSectionsInTableView(const UITableView&) { return 2; }

NSString QMLottiesList::titleForHeaderInSection(const UITableView&, std::size_t section) {
  return section == enabledSection ? "Enabled Lotties" : "Disabled Lotties";
}

std::size_t QMLottiesList::numberOfRowsInSection(const UITableView&, std::size_t section) {
  return (section == enabledSection ? enabledViews : disabledViews).count();
}

UITableViewCell QMLottiesList::cellForRowAtIndexPath(UITableView table,
                                                     const NSIndexPath& indexPath) {
  const bool enabled = indexPath.section == enabledSection;
  const NSString identifier = enabled ? "EnabledViewCell" : "DisabledViewCell";
  UITableViewCell cell = table.dequeueReusableCellWithIdentifier(identifier);
  if (!cell) cell = UITableViewCell::initWithStyle(UITableViewCellStyle::Default, identifier);
  const NSMutableArray& names = enabled ? enabledViews : disabledViews;
  cell.textLabel().setText(names.objectAtIndex(indexPath.row).as<NSString>());
  cell.textLabel().setTextColor(accentColor());
  return cell;
}

bool QMLottiesList::canEditRowAtIndexPath(const UITableView&, const NSIndexPath&) { return true; }

bool QMLottiesList::canMoveRowAtIndexPath(const UITableView&, const NSIndexPath& indexPath) {
  return indexPath.section == enabledSection;
}

UITableViewCellEditingStyle QMLottiesList::editingStyleForRowAtIndexPath(
    const UITableView&, const NSIndexPath& indexPath) {
  switch (indexPath.section) {
    case 0:
      return UITableViewCellEditingStyle::Delete;
    case 1:
      return UITableViewCellEditingStyle::Insert;
    default:
      return UITableViewCellEditingStyle::None;
  }
}

bool QMLottiesList::shouldIndentWhileEditingRowAtIndexPath(const UITableView&, const NSIndexPath&) {
  return false;
}

NSIndexPath QMLottiesList::targetIndexPathForMoveFromRowAtIndexPath(const UITableView&,
                                                                    const NSIndexPath& source,
                                                                    const NSIndexPath& proposed) {
  return proposed.section == source.section ? proposed : source;
}

void QMLottiesList::commitEditingStyle(const UITableView&, UITableViewCellEditingStyle style,
                                       const NSIndexPath& indexPath) {
  if (style == UITableViewCellEditingStyle::Delete) disable(indexPath.row);
  if (style == UITableViewCellEditingStyle::Insert) enable(indexPath.row);
}

void QMLottiesList::disable(std::size_t row) {
  const Object name = enabledViews.objectAtIndex(row);
  enabledViews.removeObject(name);
  disabledViews.addObject(name);
  saveAndReload();
}

void QMLottiesList::enable(std::size_t row) {
  const Object name = disabledViews.objectAtIndex(row);
  disabledViews.removeObject(name);
  enabledViews.insertObject(name, 0);
  saveAndReload();
}

void QMLottiesList::moveRowAtIndexPath(const UITableView&, const NSIndexPath& source,
                                       const NSIndexPath& destination) {
  if (source.section != enabledSection || destination.section != enabledSection ||
      source == destination) {
    return;
  }
  const Object name = enabledViews.objectAtIndex(source.row);
  enabledViews.removeObject(name);
  // A name that stood there twice leaves a list that is shorter than the table showed.
  enabledViews.insertObject(name, std::min(destination.row, enabledViews.count()));
  saveAndReload();
}

void QMLottiesList::saveAndReload() {
  save();
  tableView.reloadData();
}

std::span<const Method> QMLottiesList::methods() const {
  static constexpr Method table[] = {
      method<&QMLottiesList::save>("save"),
      method<&QMLottiesList::edit>("edit"),
      getter<&QMLottiesList::allViews>("allViews"),
      setter<&QMLottiesList::allViews>("setAllViews:"),
      getter<&QMLottiesList::defaultViews>("defaultViews"),
      setter<&QMLottiesList::defaultViews>("setDefaultViews:"),
      getter<&QMLottiesList::enabledViews>("enabledViews"),
      setter<&QMLottiesList::enabledViews>("setEnabledViews:"),
      getter<&QMLottiesList::disabledViews>("disabledViews"),
      setter<&QMLottiesList::disabledViews>("setDisabledViews:"),
      getter<&QMLottiesList::tableView>("tableView"),
      setter<&QMLottiesList::tableView>("setTableView:"),
      getter<&QMLottiesList::editButton>("editButton"),
      setter<&QMLottiesList::editButton>("setEditButton:"),
      getter<&QMLottiesList::appName>("appName"),
      setter<&QMLottiesList::appName>("setAppName:"),
  };
  return table;
}

}  // namespace quillmere
