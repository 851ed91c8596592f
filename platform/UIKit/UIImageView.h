#pragma once

#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UIView.h"

namespace platform {

/// A view that shows a picture.
class UIImageView : public UIView {
 public:
  static UIImageView initWithFrame(const CGRect& frame);
  /// As large as the picture, in points; of no size for none.
  static UIImageView initWithImage(const UIImage& image);

  /// None shows nothing.
  void setImage(const UIImage& image);
};

}  // namespace platform
