#include <cmath>
#include <filesystem>
#include <iostream>

#include "bench/runner/Result.h"
#include "bench/support/Rescaled.h"
#include "bench/support/Vips.h"
#include "desktop/Phone.h"

namespace {

constexpr double mustReach = 41;  // decibels

/// The peak signal-to-noise ratio between the pixels of two pictures, in decibels.
double psnr(cairo_surface_t& picture, const std::vector<unsigned char>& other) {
  const unsigned char* const bytes = cairo_image_surface_get_data(&picture);
  double squares = 0;
  for (std::size_t i = 0; i < other.size(); ++i) {
    const double difference = static_cast<double>(bytes[i]) - other[i];
    squares += difference * difference;
  }
  return 10 * std::log10(255.0 * 255.0 * static_cast<double>(other.size()) / squares);
}

void print(std::size_t side, double reached) {
  bench::Result result;
  result.race = "rescale-quality";
  result.size = side;
  result.contestant = "ours, to vips' Lanczos";
  result.unit = "dB";
  result.median = reached;
  result.must = "at least 41 dB";
  result.holds = reached >= mustReach;
  std::cout << bench::toJson(result) << std::endl;
}

}  // namespace

/// Tells how near the bundle's smaller pictures come to those of another library's best filter:
/// `picture-quality FOLDER`, in which it may write.
int main(int argc, char** argv) {
  constexpr int side = 1024;
  bench::startVips(argv[0]);
  const std::filesystem::path folder = argc > 1 ? argv[1] : ".";
  std::filesystem::create_directories(folder);
  const desktop::Phone phone(folder);
  const bench::Surface ours = bench::rescaled(bench::openPicture(side, folder));
  print(side, psnr(*ours, bench::rescaleByVips(*bench::drawPicture(side))));
}
