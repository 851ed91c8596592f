#include "desktop/UIKit/Raster.h"

#include <utility>

namespace desktop {

Raster::Raster(int pixelsWide, int pixelsHigh, Making making)
    : width(pixelsWide), height(pixelsHigh), making_(std::move(making)) {}

Raster::Raster(Surface pixels)
    : width(cairo_image_surface_get_width(pixels.get())),
      height(cairo_image_surface_get_height(pixels.get())),
      surface_(std::move(pixels)) {}

cairo_surface_t& Raster::surface() const {
  if (making_) surface_ = std::exchange(making_, nullptr)();
  if (!surface_) surface_.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
  return *surface_;
}

}  // namespace desktop
