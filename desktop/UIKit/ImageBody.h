#pragma once

#include <memory>
#include <string>

#include "desktop/Body.h"
#include "desktop/UIKit/Raster.h"
#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIImage.h"

namespace desktop {

/// A picture. Never changes after it was made.
class ImageBody : public Body {
 public:
  /// `pixelsToAPoint` of the raster's pixels make a point in each direction.
  ImageBody(
      std::shared_ptr<const Raster> raster, double pixelsToAPoint,
      platform::UIImageRenderingMode renderingMode = platform::UIImageRenderingMode::Automatic);

  std::string_view className() const override { return "UIImage"; }

  /// In points.
  platform::CGSize size() const;

  /// The same pixels in another mode.
  platform::UIImage inMode(platform::UIImageRenderingMode renderingMode) const;

  /// The pixels, for drawing.
  const std::shared_ptr<const Raster>& raster() const { return raster_; }

  /// The picture as a PNG file, in its own colours; made when it is asked for first.
  const std::string& png() const;

  /// Never used twice, so that who draws the screen can name the picture.
  const unsigned number;
  /// Pixels to a point.
  const double scale;
  const platform::UIImageRenderingMode mode;

 private:
  std::shared_ptr<const Raster> raster_;
  mutable std::string png_;
};

}  // namespace desktop
