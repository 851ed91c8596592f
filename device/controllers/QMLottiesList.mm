#include "lotties/QMLottiesList.h"

#include "device/Controller.h"
#include "device/Native.h"
#include "device/UIKit/IndexPath.h"

@interface QMLottiesList
    : UIViewController <QMController, UITableViewDataSource, UITableViewDelegate> {
  std::shared_ptr<platform::UIViewController> _controller;
}
@property(nonatomic, retain) NSMutableArray* allViews;
@property(nonatomic, retain) NSMutableArray* defaultViews;
@property(nonatomic, retain) NSMutableArray* enabledViews;
@property(nonatomic, retain) NSMutableArray* disabledViews;
@property(nonatomic, retain) UITableView* tableView;
@property(nonatomic, retain) UIBarButtonItem* editButton;
@property(nonatomic, retain) NSString* appName;
@end

namespace {

quillmere::QMLottiesList& list(QMLottiesList* owner) {
  return static_cast<quillmere::QMLottiesList&>(*[owner ownedController]);
}

platform::UITableView handle(UITableView* table) {
  return device::handle<platform::UITableView>(table);
}

}  // namespace

@implementation QMLottiesList
#include "device/controllers/Controller.inc"

- (void)save {
  device::call(self, _cmd);
}
- (void)edit {
  device::call(self, _cmd);
}

- (NSMutableArray*)allViews {
  return device::call(self, _cmd);
}
- (void)setAllViews:(NSMutableArray*)names {
  device::call(self, _cmd, names);
}
- (NSMutableArray*)defaultViews {
  return device::call(self, _cmd);
}
- (void)setDefaultViews:(NSMutableArray*)names {
  device::call(self, _cmd, names);
}
- (NSMutableArray*)enabledViews {
  return device::call(self, _cmd);
}
- (void)setEnabledViews:(NSMutableArray*)names {
  device::call(self, _cmd, names);
}
- (NSMutableArray*)disabledViews {
  return device::call(self, _cmd);
}
- (void)setDisabledViews:(NSMutableArray*)names {
  device::call(self, _cmd, names);
}
- (UITableView*)tableView {
  return device::call(self, _cmd);
}
- (void)setTableView:(UITableView*)table {
  device::call(self, _cmd, table);
}
- (UIBarButtonItem*)editButton {
  return device::call(self, _cmd);
}
- (void)setEditButton:(UIBarButtonItem*)button {
  device::call(self, _cmd, button);
}
- (NSString*)appName {
  return device::call(self, _cmd);
}
- (void)setAppName:(NSString*)name {
  device::call(self, _cmd, name);
}

- (NSInteger)numberOfSectionsInTableView:(UITableView*)table {
  return NSInteger(list(self).numberOfSectionsInTableView(handle(table)));
}

- (NSString*)tableView:(UITableView*)table titleForHeaderInSection:(NSInteger)section {
  return device::autoreleased(
      list(self).titleForHeaderInSection(handle(table), std::size_t(section)));
}

- (NSInteger)tableView:(UITableView*)table numberOfRowsInSection:(NSInteger)section {
  return NSInteger(list(self).numberOfRowsInSection(handle(table), std::size_t(section)));
}

- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path {
  return device::autoreleased(
      list(self).cellForRowAtIndexPath(handle(table), device::indexPath(path)));
}

- (BOOL)tableView:(UITableView*)table canEditRowAtIndexPath:(NSIndexPath*)path {
  return list(self).canEditRowAtIndexPath(handle(table), device::indexPath(path));
}

- (BOOL)tableView:(UITableView*)table canMoveRowAtIndexPath:(NSIndexPath*)path {
  return list(self).canMoveRowAtIndexPath(handle(table), device::indexPath(path));
}

- (void)tableView:(UITableView*)table
    commitEditingStyle:(UITableViewCellEditingStyle)style
     forRowAtIndexPath:(NSIndexPath*)path {
  list(self).commitEditingStyle(handle(table), platform::UITableViewCellEditingStyle(style),
                                device::indexPath(path));
}

- (void)tableView:(UITableView*)table
    moveRowAtIndexPath:(NSIndexPath*)source
           toIndexPath:(NSIndexPath*)destination {
  list(self).moveRowAtIndexPath(handle(table), device::indexPath(source),
                                device::indexPath(destination));
}

- (UITableViewCellEditingStyle)tableView:(UITableView*)table
           editingStyleForRowAtIndexPath:(NSIndexPath*)path {
  return UITableViewCellEditingStyle(
      list(self).editingStyleForRowAtIndexPath(handle(table), device::indexPath(path)));
}

- (BOOL)tableView:(UITableView*)table shouldIndentWhileEditingRowAtIndexPath:(NSIndexPath*)path {
  return list(self).shouldIndentWhileEditingRowAtIndexPath(handle(table), device::indexPath(path));
}

- (NSIndexPath*)tableView:(UITableView*)table
    targetIndexPathForMoveFromRowAtIndexPath:(NSIndexPath*)source
                         toProposedIndexPath:(NSIndexPath*)proposed {
  return device::native(list(self).targetIndexPathForMoveFromRowAtIndexPath(
      handle(table), device::indexPath(source), device::indexPath(proposed)));
}

@end
