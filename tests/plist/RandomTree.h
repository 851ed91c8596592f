#pragma once

#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <string>

#include "tests/plist/Random.h"

namespace samples {

/// A test of many random values. QUILLMERE_ROUNDS says how many, QUILLMERE_SEED repeats a failure.
class RandomTree : public testing::Test {
 protected:
  static std::uint64_t setting(const char* name, std::uint64_t otherwise) {
    const char* const text = std::getenv(name);
    return text == nullptr ? otherwise : std::strtoull(text, nullptr, 10);
  }

  template <typename Check>
  void forEach(const Variety& variety, Check&& check) {
    const std::uint64_t first = setting("QUILLMERE_SEED", std::random_device{}());
    const std::uint64_t rounds = setting("QUILLMERE_ROUNDS", 500);
    for (std::uint64_t seed = first; seed < first + rounds; ++seed) {
      SCOPED_TRACE("QUILLMERE_SEED=" + std::to_string(seed));
      std::mt19937_64 random(seed);
      check(randomTree(random, variety));
      if (HasFailure()) break;
    }
  }
};

}  // namespace samples
