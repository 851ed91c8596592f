#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UIView.h"

namespace platform {

/// The numbers are UIKit's.
enum class NSTextAlignment : long {
  Left = 0,
  Center = 1,
  Right = 2,
};

/// A line of text.
class UILabel : public UIView {
 public:
  static UILabel initWithFrame(const CGRect& frame);

  void setFont(const UIFont& font);
  /// None empties the label.
  void setText(const NSString& text);
  void setTextColor(const UIColor& color);
  void setTextAlignment(NSTextAlignment alignment);
};

}  // namespace platform
