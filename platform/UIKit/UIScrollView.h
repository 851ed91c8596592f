#pragma once

#include "platform/UIKit/UIView.h"

namespace platform {

/// A view onto a part of a larger content.
class UIScrollView : public UIView {
 public:
  /// What of the content stands in the view's upper corner; negative while it bounces.
  CGPoint contentOffset() const;
};

}  // namespace platform
