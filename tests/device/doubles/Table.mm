#import <UIKit/UIKit.h>

#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITableViewDataSource.h"
#include "platform/UIKit/UITableViewDelegate.h"
#include "tests/device/doubles/Bridge.h"
#include "tests/device/doubles/Double.h"
#include "tests/device/doubles/Geometry.h"

using doubles::bridgeOf;
using doubles::handle;
using doubles::initialised;
using doubles::object;
using platform::Animated;

@implementation NSIndexPath (UIKitAdditions)

+ (instancetype)indexPathForRow:(NSInteger)row inSection:(NSInteger)section {
  NSUInteger indexes[] = {NSUInteger(section), NSUInteger(row)};
  return [self indexPathWithIndexes:indexes length:2];
}
- (NSInteger)section {
  return NSInteger([self indexAtPosition:0]);
}
- (NSInteger)row {
  return NSInteger([self indexAtPosition:1]);
}

@end

@implementation UIScrollView

- (CGPoint)contentOffset {
  const platform::CGPoint offset = handle<platform::UIScrollView>(self).contentOffset();
  return {offset.x, offset.y};
}
- (void)setContentOffset:(CGPoint)offset {
  [self doesNotRecognizeSelector:_cmd];
  (void)offset;
}

@end

@implementation UITableView

static platform::UITableView own(UITableView* self) { return handle<platform::UITableView>(self); }

- (instancetype)initWithFrame:(CGRect)frame style:(UITableViewStyle)style {
  return initialised(self, platform::UITableView::initWithFrame(doubles::rect(frame),
                                                                platform::UITableViewStyle(style)));
}
- (void)setDelegate:(id<UITableViewDelegate>)delegate {
  own(self).setDelegate(
      dynamic_cast<platform::UITableViewDelegate&>(bridgeOf((UIViewController*)delegate)));
}
- (void)setDataSource:(id<UITableViewDataSource>)source {
  own(self).setDataSource(
      dynamic_cast<platform::UITableViewDataSource&>(bridgeOf((UIViewController*)source)));
}
- (void)setSeparatorColor:(UIColor*)color {
  own(self).setSeparatorColor(handle<platform::UIColor>(color));
}
- (void)setAllowsSelection:(BOOL)allows {
  own(self).setAllowsSelection(allows);
}
- (void)setTableHeaderView:(UIView*)view {
  own(self).setTableHeaderView(handle<platform::UIView>(view));
}
- (BOOL)isEditing {
  return own(self).isEditing();
}
- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
  own(self).setEditing(editing, Animated(bool(animated)));
}
- (void)reloadData {
  own(self).reloadData();
}
- (UITableViewCell*)dequeueReusableCellWithIdentifier:(NSString*)identifier {
  return object(
      own(self).dequeueReusableCellWithIdentifier(handle<platform::NSString>(identifier)));
}

@end

@implementation UITableViewCell

- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString*)identifier {
  return initialised(
      self, platform::UITableViewCell::initWithStyle(platform::UITableViewCellStyle(style),
                                                     handle<platform::NSString>(identifier)));
}
- (UILabel*)textLabel {
  return object(handle<platform::UITableViewCell>(self).textLabel());
}

@end
