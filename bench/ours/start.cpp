#include "bench/support/Start.h"

namespace {

using namespace bench;

/// Over a phone that is there already.
Trial start(std::size_t, const std::filesystem::path& folder) {
  Trial trial = startOf({QUILLMERE_SETTINGS, "--no-open", "--root", folder});
  trial.operation();
  return trial;
}

constexpr Case cases[] = {{"start", &start}};

}  // namespace

int main(int argc, char** argv) { return compete(argc, argv, cases); }
