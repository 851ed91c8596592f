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

QUILLMERE_PROPERTY(NSMutableArray, allViews, setAllViews)
QUILLMERE_PROPERTY(NSMutableArray, defaultViews, setDefaultViews)
QUILLMERE_PROPERTY(NSMutableArray, enabledViews, setEnabledViews)
QUILLMERE_PROPERTY(NSMutableArray, disabledViews, setDisabledViews)
QUILLMERE_PROPERTY(UITableView, tableView, setTableView)
QUILLMERE_PROPERTY(UIBarButtonItem, editButton, setEditButton)
QUILLMERE_PROPERTY(NSString, appName, setAppName)

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
