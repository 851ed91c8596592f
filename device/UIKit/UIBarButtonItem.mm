#include "platform/UIKit/UIBarButtonItem.h"

#import <UIKit/UIKit.h>

#include "device/Native.h"

namespace platform {

using device::adopt;
using device::native;

UIBarButtonItem UIBarButtonItem::initWithCustomView(const UIView& view) {
  return adopt<UIBarButtonItem>([[::UIBarButtonItem alloc] initWithCustomView:native(view)]);
}

void UIBarButtonItem::setTitle(const NSString& title) { [native(*this) setTitle:native(title)]; }

}  // namespace platform
