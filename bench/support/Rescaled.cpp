#include "bench/support/Rescaled.h"

#include <stdexcept>

#include "desktop/UIKit/ImageBody.h"
#include "prefs/Images.h"

namespace bench {

platform::UIImage openPicture(int side, const std::filesystem::path& folder) {
  writePicture(side, folder / "picture.png");
  return platform::UIImage::imageWithContentsOfFile("/picture.png");
}

Surface rescaled(const platform::UIImage& picture) {
  const platform::UIImage scaled = quillmere::rescaleImage(picture, {points, points});
  const auto* body = desktop::bodyAs<desktop::ImageBody>(scaled);
  if (!body) throw std::runtime_error("there is no picture");
  cairo_surface_t& pixels = body->raster()->surface();
  if (cairo_image_surface_get_width(&pixels) != scaledSide) {
    throw std::runtime_error("the picture has another size");
  }
  return {cairo_surface_reference(&pixels), &cairo_surface_destroy};
}

}  // namespace bench
