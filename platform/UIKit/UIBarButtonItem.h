#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UIView.h"

namespace platform {

/// An item of a bar.
class UIBarButtonItem : public Object {
 public:
  /// An item that is this view.
  static UIBarButtonItem initWithCustomView(const UIView& view);

  void setTitle(const NSString& title);
};

}  // namespace platform
