#include "platform/UIKit/UITableView.h"

#import <UIKit/UIKit.h>

#include "device/Controller.h"
#include "device/CoreGraphics/Geometry.h"
#include "device/Native.h"
#include "platform/UIKit/UITableViewDataSource.h"
#include "platform/UIKit/UITableViewDelegate.h"

namespace platform {

using device::adopt;
using device::handle;
using device::native;

static_assert(long(UITableViewStyle::Grouped) == ::UITableViewStyleGrouped);
static_assert(long(UITableViewCellEditingStyle::None) == ::UITableViewCellEditingStyleNone);
static_assert(long(UITableViewCellEditingStyle::Delete) == ::UITableViewCellEditingStyleDelete);
static_assert(long(UITableViewCellEditingStyle::Insert) == ::UITableViewCellEditingStyleInsert);

UITableView UITableView::initWithFrame(const CGRect& frame, UITableViewStyle style) {
  return adopt<UITableView>([[::UITableView alloc]
      initWithFrame:native(frame)
              style:static_cast<::UITableViewStyle>(style)]);
}

void UITableView::setDelegate(UITableViewDelegate& delegate) {
  [native(*this) setDelegate:(id<UITableViewDelegate>)device::controllerBehind(delegate)];
}

void UITableView::setDataSource(UITableViewDataSource& dataSource) {
  [native(*this) setDataSource:(id<UITableViewDataSource>)device::controllerBehind(dataSource)];
}

void UITableView::setSeparatorColor(const UIColor& color) {
  [native(*this) setSeparatorColor:native(color)];
}

void UITableView::setAllowsSelection(bool allows) { [native(*this) setAllowsSelection:allows]; }

void UITableView::setTableHeaderView(const UIView& view) {
  [native(*this) setTableHeaderView:native(view)];
}

bool UITableView::isEditing() const { return [native(*this) isEditing]; }

void UITableView::setEditing(bool editing, Animated animated) {
  [native(*this) setEditing:editing animated:animated == Animated::Yes];
}

void UITableView::reloadData() { [native(*this) reloadData]; }

UITableViewCell UITableView::dequeueReusableCellWithIdentifier(const NSString& identifier) {
  return handle<UITableViewCell>(
      [native(*this) dequeueReusableCellWithIdentifier:native(identifier)]);
}

}  // namespace platform
