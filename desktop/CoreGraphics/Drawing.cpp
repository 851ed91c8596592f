#include "desktop/CoreGraphics/Drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace desktop {

namespace {

/// Cairo keeps places in pixels as numbers of 24 bits before the point, sign included, and what is
/// larger comes back in at the other side. Half of that is far enough.
constexpr double farthest = 1 << 22;

/// The fraction of a pixel below which Cairo sees none.
constexpr double finest = 1.0 / 256;

/// Cairo keeps in 16 bits how many pixels are filtered into one; more are an error that would spoil
/// the context for good.
constexpr double mostIntoOne = 32767;

/// The widest and highest surface that Cairo makes.
constexpr double longest = 32767;

bool canStretch(cairo_t& context, cairo_surface_t& pixels, const platform::CGRect& rect) {
  auto [width, height] = rect.size;
  cairo_user_to_device_distance(&context, &width, &height);
  return canDraw(context, rect) && cairo_image_surface_get_width(&pixels) <= mostIntoOne * width &&
         cairo_image_surface_get_height(&pixels) <= mostIntoOne * height;
}

/// Makes `rect` the clip, and a pattern that fills it with a surface. The last pixels go on past
/// the surface's edge, so that filtering does not mix transparency into the outermost ones.
Pattern stretch(cairo_t& context, cairo_surface_t& pixels, const platform::CGRect& rect) {
  const auto& [origin, size] = rect;
  cairo_rectangle(&context, origin.x, origin.y, size.width, size.height);
  cairo_clip(&context);
  cairo_matrix_t toPixels;
  cairo_matrix_init_scale(&toPixels, cairo_image_surface_get_width(&pixels) / size.width,
                          cairo_image_surface_get_height(&pixels) / size.height);
  cairo_matrix_translate(&toPixels, -origin.x, -origin.y);
  Pattern pattern(cairo_pattern_create_for_surface(&pixels));
  cairo_pattern_set_matrix(pattern.get(), &toPixels);
  cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_PAD);
  cairo_pattern_set_filter(pattern.get(), CAIRO_FILTER_BEST);
  return pattern;
}

/// A filter that sharpens overshoots in each channel alone; a colour stronger than its alpha would
/// wrap around when it is divided by it.
std::uint32_t bounded(std::uint32_t pixel) {
  const std::uint32_t alpha = pixel >> 24;
  const auto channel = [&](unsigned shift) {
    return std::min(pixel >> shift & 0xff, alpha) << shift;
  };
  return alpha << 24 | channel(16) | channel(8) | channel(0);
}

}  // namespace

bool isBearable(double width, double height) {
  // Written so that what is no number fails.
  return width >= 1 && height >= 1 && width <= longest && height <= longest &&
         width * height <= maximumPixels;
}

Surface makeSurface(int width, int height) {
  Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
  return cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS ? std::move(surface) : nullptr;
}

void boundColors(cairo_surface_t& pixels) {
  cairo_surface_flush(&pixels);
  unsigned char* row = cairo_image_surface_get_data(&pixels);
  const int width = cairo_image_surface_get_width(&pixels);
  for (int y = 0; y < cairo_image_surface_get_height(&pixels); ++y) {
    // Cairo aligns rows for pixels of 32 bits.
    auto* first = reinterpret_cast<std::uint32_t*>(row);
    std::transform(first, first + width, first, &bounded);
    row += cairo_image_surface_get_stride(&pixels);
  }
  cairo_surface_mark_dirty(&pixels);
}

Surface copyOf(cairo_surface_t& pixels) {
  Surface copy =
      makeSurface(cairo_image_surface_get_width(&pixels), cairo_image_surface_get_height(&pixels));
  if (!copy) return nullptr;
  const Context context(cairo_create(copy.get()));
  cairo_set_operator(context.get(), CAIRO_OPERATOR_SOURCE);
  cairo_set_source_surface(context.get(), &pixels, 0, 0);
  cairo_paint(context.get());
  boundColors(*copy);
  return copy;
}

bool canDraw(cairo_t& context, const platform::CGRect& rect) {
  std::array<double, 4> corners{rect.origin.x, rect.origin.y, rect.origin.x + rect.size.width,
                                rect.origin.y + rect.size.height};
  cairo_user_to_device(&context, &corners[0], &corners[1]);
  cairo_user_to_device(&context, &corners[2], &corners[3]);
  // Written so that what is no number fails.
  return corners[2] - corners[0] >= finest && corners[3] - corners[1] >= finest &&
         std::ranges::all_of(corners, [](double place) { return std::abs(place) < farthest; });
}

void setColor(cairo_t& context, const ColorBody& color) {
  cairo_set_source_rgba(&context, color.red, color.green, color.blue, color.alpha);
}

void traceRounded(cairo_t& context, const platform::CGRect& rect, double radius) {
  const auto& [origin, size] = rect;
  const double fitting = radius > 0 ? std::min({radius, size.width / 2, size.height / 2}) : 0;
  const double right = origin.x + size.width - fitting;
  const double bottom = origin.y + size.height - fitting;
  const double left = origin.x + fitting;
  const double top = origin.y + fitting;
  constexpr double quarter = std::numbers::pi / 2;
  cairo_new_sub_path(&context);
  cairo_arc(&context, right, top, fitting, -quarter, 0);
  cairo_arc(&context, right, bottom, fitting, 0, quarter);
  cairo_arc(&context, left, bottom, fitting, quarter, 2 * quarter);
  cairo_arc(&context, left, top, fitting, 2 * quarter, 3 * quarter);
  cairo_close_path(&context);
}

void drawStretched(cairo_t& context, cairo_surface_t& pixels, const platform::CGRect& rect) {
  if (!canStretch(context, pixels, rect)) return;
  const SavedState state(context);
  const Pattern pattern = stretch(context, pixels, rect);
  cairo_set_source(&context, pattern.get());
  cairo_paint(&context);
}

void drawShape(cairo_t& context, cairo_surface_t& pixels, const platform::CGRect& rect,
               const ColorBody& color) {
  if (!canStretch(context, pixels, rect)) return;
  const SavedState state(context);
  const Pattern pattern = stretch(context, pixels, rect);
  setColor(context, color);
  cairo_mask(&context, pattern.get());
}

}  // namespace desktop
