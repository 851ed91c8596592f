#include "bench/support/Animations.h"
#include "bench/support/Contestant.h"

/// The C++ library's way: it only lists the names, and keeps those of animations.
namespace {

using namespace bench;
namespace fs = std::filesystem;

Trial catalogue(std::size_t size, const fs::path& folder) {
  return [animations = installAnimations(size, folder).animations, size] {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(animations)) {
      if (entry.path().extension() == ".lottie") names.push_back(entry.path().stem().string());
    }
    if (names.size() != size) throw std::runtime_error("a name is missing");
  };
}

constexpr Case cases[] = {{"catalogue", catalogue}};

}  // namespace

int main(int argc, char** argv) { return compete(argc, argv, cases); }
