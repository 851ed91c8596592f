#pragma once

#include "platform/UIKit/UIBarButtonItem.h"

namespace platform {

/// What a page has in the navigation bar.
class UINavigationItem : public Object {
 public:
  /// None when the page has no title.
  NSString title() const;
  void setTitle(const NSString& title);

  /// The view that stands in the title's place; none when it is the title itself.
  UIView titleView() const;
  void setTitleView(const UIView& view);

  void setRightBarButtonItem(const UIBarButtonItem& item);
};

}  // namespace platform
