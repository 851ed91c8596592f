#include "bench/support/Contestant.h"
#include "bench/support/Picture.h"

/// What Cairo takes to stretch a picture with its best filter, the last pixels going on past the
/// edge, into a new surface; and nothing besides.
namespace {

using namespace bench;

Surface rescaled(cairo_surface_t& picture, double side) {
  Surface surface = makeSurface(scaledSide);
  cairo_t* const context = cairo_create(surface.get());
  cairo_scale(context, scaledSide / side, scaledSide / side);
  cairo_set_source_surface(context, &picture, 0, 0);
  cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_PAD);
  cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_BEST);
  cairo_paint(context);
  cairo_destroy(context);
  return surface;
}

Trial rescale(std::size_t size, const std::filesystem::path&) {
  const auto side = static_cast<int>(size);
  const std::shared_ptr<cairo_surface_t> picture = drawPicture(side);
  return [picture, side] { rescaled(*picture, side); };
}

constexpr Case cases[] = {{"rescale", rescale}};

}  // namespace

int main(int argc, char** argv) { return compete(argc, argv, cases); }
