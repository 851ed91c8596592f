#include "bench/support/Picture.h"

#include <cmath>
#include <cstdint>
#include <stdexcept>

namespace bench {

namespace {

constexpr std::uint32_t opaque = 0xff000000;

std::uint32_t gray(double level) {
  return opaque | static_cast<std::uint32_t>(std::lround(level * 255)) * 0x010101;
}

/// The pixel at a place, where the picture is 1 wide and high.
std::uint32_t pixel(double x, double y) {
  if (x + y < 0.2) return 0;
  if (std::hypot(x - 0.7, y - 0.3) < 0.2) return 0xfff69240;
  if (y > 0.75) return std::fmod(x * (8 + 24 * x), 1) < 0.5 ? opaque : 0xffffffff;
  return gray(0.5 + 0.3 * std::sin(9 * x) + 0.2 * std::cos(7 * y + x));
}

}  // namespace

Surface makeSurface(int side) {
  Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, side, side),
                  &cairo_surface_destroy);
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) {
    throw std::runtime_error("no surface can be made");
  }
  return surface;
}

Surface drawPicture(int side) {
  Surface surface = makeSurface(side);
  unsigned char* row = cairo_image_surface_get_data(surface.get());
  for (int y = 0; y < side; ++y) {
    // Cairo aligns rows for pixels of 32 bits.
    auto* const pixels = reinterpret_cast<std::uint32_t*>(row);
    for (int x = 0; x < side; ++x) pixels[x] = pixel(double(x) / side, double(y) / side);
    row += cairo_image_surface_get_stride(surface.get());
  }
  cairo_surface_mark_dirty(surface.get());
  return surface;
}

void writePicture(int side, const std::filesystem::path& file) {
  if (cairo_surface_write_to_png(drawPicture(side).get(), file.c_str()) != CAIRO_STATUS_SUCCESS) {
    throw std::runtime_error(file.string() + " was not written");
  }
}

}  // namespace bench
