#pragma once

#include "desktop/UIKit/ViewBody.h"
#include "platform/UIKit/UIImage.h"

namespace desktop {

/// A view that shows a picture as its content mode says, and the shape alone of a picture in
/// template mode, in its tint.
class ImageViewBody : public ViewBody {
 public:
  std::string_view className() const override { return "UIImageView"; }
  void drawContent(_cairo& context) const override;

  /// None shows nothing.
  platform::UIImage image;
};

}  // namespace desktop
