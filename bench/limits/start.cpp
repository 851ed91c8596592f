#include "bench/support/Start.h"

namespace {

using namespace bench;

constexpr Case cases[] = {
    {"start", [](std::size_t, const auto&) { return startOf({QUILLMERE_LISTEN}); }}};

}  // namespace

int main(int argc, char** argv) { return compete(argc, argv, cases); }
