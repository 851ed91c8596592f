#include <Magick++.h>

#include "bench/support/Contestant.h"
#include "bench/support/Picture.h"

/// ImageMagick's Lanczos filter, which works at 16 bits a channel.
namespace {

using namespace bench;

Trial rescale(std::size_t size, const std::filesystem::path& folder) {
  const std::string file = folder / "picture.png";
  writePicture(static_cast<int>(size), file);
  Magick::Image picture(file);
  return [picture] {
    Magick::Image copy = picture;
    copy.filterType(Magick::LanczosFilter);
    copy.resize(Magick::Geometry(scaledSide, scaledSide));
    if (copy.columns() != scaledSide) throw std::runtime_error("the picture has another size");
  };
}

constexpr Case cases[] = {{"rescale", rescale}};

}  // namespace

int main(int argc, char** argv) {
  Magick::InitializeMagick(*argv);
  return compete(argc, argv, cases);
}
