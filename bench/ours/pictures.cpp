#include "bench/support/Contestant.h"
#include "bench/support/Picture.h"
#include "bench/support/Rescaled.h"
#include "desktop/Phone.h"

namespace {

using bench::Trial;

Trial rescale(std::size_t size, const std::filesystem::path& folder) {
  const auto phone = std::make_shared<desktop::Phone>(folder);
  const platform::UIImage picture = bench::openPicture(static_cast<int>(size), folder);
  bench::rescaled(picture);  // A picture is decoded when it is drawn first.
  return [phone, picture] { bench::rescaled(picture); };
}

constexpr bench::Case cases[] = {{"rescale", &rescale}};

}  // namespace

int main(int argc, char** argv) { return bench::compete(argc, argv, cases); }
