#include "tests/desktop/Pixels.h"

#include <cmath>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace desktop_tests {

platform::UIImage makePicture(int width, int height, double scale,
                              const std::function<Pixel(int x, int y)>& pixel) {
  desktop::Surface surface = desktop::makeSurface(width, height);
  if (!surface) throw std::runtime_error("no surface of that size");
  unsigned char* row = cairo_image_surface_get_data(surface.get());
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const Pixel value = pixel(x, y);
      std::memcpy(row + static_cast<std::size_t>(x) * sizeof value, &value, sizeof value);
    }
    row += cairo_image_surface_get_stride(surface.get());
  }
  cairo_surface_mark_dirty(surface.get());
  return desktop::make<platform::UIImage, desktop::ImageBody>(
      std::make_shared<const desktop::Raster>(std::move(surface)), scale);
}

platform::UIImage makePicture(int width, int height, double scale, Pixel color) {
  return makePicture(width, height, scale, [=](int, int) { return color; });
}

Pixels pixelsOf(cairo_surface_t* surface) {
  if (!surface) return {};
  Pixels pixels{
      cairo_image_surface_get_width(surface), cairo_image_surface_get_height(surface), {}};
  cairo_surface_flush(surface);
  const unsigned char* row = cairo_image_surface_get_data(surface);
  const auto width = static_cast<std::size_t>(pixels.width);
  pixels.values.resize(width * static_cast<std::size_t>(pixels.height));
  for (std::size_t start = 0; start < pixels.values.size(); start += width) {
    std::memcpy(&pixels.values[start], row, width * sizeof(Pixel));
    row += cairo_image_surface_get_stride(surface);
  }
  return pixels;
}

Pixels pixelsOf(const platform::UIImage& picture) {
  return picture ? pixelsOf(&bodyOf(picture).raster()->surface()) : Pixels();
}

const desktop::ImageBody& bodyOf(const platform::UIImage& picture) {
  const auto* body = desktop::bodyAs<desktop::ImageBody>(picture);
  if (!body) throw std::runtime_error("no picture");
  return *body;
}

double psnr(const Pixels& one, const Pixels& other) {
  if (one.values.size() != other.values.size()) throw std::runtime_error("not of the same size");
  double squares = 0;
  for (std::size_t index = 0; index < one.values.size(); ++index) {
    for (int number = 0; number < 4; ++number) {
      const int difference =
          channel(one.values[index], number) - channel(other.values[index], number);
      squares += difference * difference;
    }
  }
  return 10 * std::log10(255.0 * 255.0 * 4 * static_cast<double>(one.values.size()) / squares);
}

}  // namespace desktop_tests
