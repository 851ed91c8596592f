#include "bench/support/Vips.h"

#include "bench/support/Contestant.h"

/// libvips' resize with three lobes of Lanczos' filter, which uses as many threads as there are
/// processors.
namespace {

using namespace bench;

Trial rescale(std::size_t size, const std::filesystem::path&) {
  const std::shared_ptr<cairo_surface_t> picture = drawPicture(static_cast<int>(size));
  return [picture] { rescaleByVips(*picture); };
}

constexpr Case cases[] = {{"rescale", rescale}};

}  // namespace

int main(int argc, char** argv) {
  startVips(argv[0]);
  return compete(argc, argv, cases);
}
