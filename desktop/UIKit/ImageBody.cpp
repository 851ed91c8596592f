#include "desktop/UIKit/ImageBody.h"

#include "desktop/CoreGraphics/Png.h"

namespace desktop {

namespace {

unsigned lastNumber = 0;

}  // namespace

ImageBody::ImageBody(Surface pixels, double pixelsToAPoint,
                     platform::UIImageRenderingMode renderingMode)
    : number(++lastNumber),
      scale(pixelsToAPoint),
      mode(renderingMode),
      pixels_(std::move(pixels)) {}

platform::CGSize ImageBody::size() const {
  return {cairo_image_surface_get_width(pixels_.get()) / scale,
          cairo_image_surface_get_height(pixels_.get()) / scale};
}

platform::UIImage ImageBody::inMode(platform::UIImageRenderingMode renderingMode) const {
  Surface shared(cairo_surface_reference(pixels_.get()));
  return make<platform::UIImage, ImageBody>(std::move(shared), scale, renderingMode);
}

const std::string& ImageBody::png() const {
  if (png_.empty()) png_ = writePng(*pixels_);
  return png_;
}

}  // namespace desktop
