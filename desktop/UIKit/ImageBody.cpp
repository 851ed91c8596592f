#include "desktop/UIKit/ImageBody.h"

#include "desktop/CoreGraphics/Png.h"

namespace desktop {

namespace {

unsigned lastNumber = 0;

}  // namespace

ImageBody::ImageBody(std::shared_ptr<const Raster> raster, double pixelsToAPoint,
                     platform::UIImageRenderingMode renderingMode)
    : number(++lastNumber),
      scale(pixelsToAPoint),
      mode(renderingMode),
      raster_(std::move(raster)) {}

platform::CGSize ImageBody::size() const {
  return {raster_->width / scale, raster_->height / scale};
}

platform::UIImage ImageBody::inMode(platform::UIImageRenderingMode renderingMode) const {
  return make<platform::UIImage, ImageBody>(raster_, scale, renderingMode);
}

const std::string& ImageBody::png() const {
  if (png_.empty()) png_ = writePng(raster_->surface());
  return png_;
}

}  // namespace desktop
