#include "platform/UIKit/UINavigationItem.h"

#import <UIKit/UIKit.h>

#include "device/Native.h"

namespace platform {

using device::handle;
using device::native;

NSString UINavigationItem::title() const { return handle<NSString>([native(*this) title]); }

void UINavigationItem::setTitle(const NSString& title) { [native(*this) setTitle:native(title)]; }

UIView UINavigationItem::titleView() const { return handle<UIView>([native(*this) titleView]); }

void UINavigationItem::setTitleView(const UIView& view) {
  [native(*this) setTitleView:native(view)];
}

void UINavigationItem::setRightBarButtonItem(const UIBarButtonItem& item) {
  [native(*this) setRightBarButtonItem:native(item)];
}

}  // namespace platform
