#include "bench/support/Vips.h"

#include <stdexcept>
#include <vips/vips.h>

namespace bench {

namespace {

void check(bool done) {
  if (!done) throw std::runtime_error(vips_error_buffer());
}

}  // namespace

void startVips(const char* program) {
  check(VIPS_INIT(program) == 0);
  vips_cache_set_max(0);  // The same picture is scaled again and again.
}

std::vector<unsigned char> rescaleByVips(cairo_surface_t& picture) {
  constexpr int channels = 4;
  const int side = cairo_image_surface_get_width(&picture);
  const unsigned char* const bytes = cairo_image_surface_get_data(&picture);
  const auto size = static_cast<std::size_t>(side) * static_cast<std::size_t>(side) * channels;
  VipsImage* const whole =
      vips_image_new_from_memory(bytes, size, side, side, channels, VIPS_FORMAT_UCHAR);
  check(whole != nullptr);
  VipsImage* scaled = nullptr;
  const bool done = vips_resize(whole, &scaled, double(scaledSide) / side, "kernel",
                                VIPS_KERNEL_LANCZOS3, nullptr) == 0;
  g_object_unref(whole);
  check(done);
  std::size_t length = 0;
  auto* const made = static_cast<unsigned char*>(vips_image_write_to_memory(scaled, &length));
  g_object_unref(scaled);
  check(made != nullptr);
  std::vector<unsigned char> pixels(made, made + length);
  g_free(made);
  return pixels;
}

}  // namespace bench
