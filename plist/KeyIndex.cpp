#include "plist/KeyIndex.h"

#include <cstring>
#include <random>

namespace plist {
namespace {

__extension__ using Wide = unsigned __int128;

std::uint64_t fold(std::uint64_t left, std::uint64_t right) noexcept {
  const Wide product = static_cast<Wide>(left) * right;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

std::uint64_t word(const char* bytes, std::size_t count) noexcept {
  std::uint64_t result = 0;
  std::memcpy(&result, bytes, count);
  return result;
}

std::uint64_t randomWord() {
  // From the system: the processor's own randomness is slow to ask for where it runs a guest.
  std::random_device source("getentropy");
  return (std::uint64_t{source()} << 32) | source() | 1;
}

const std::uint64_t kSeed = randomWord();
const std::uint64_t kFactor = randomWord();

}  // namespace

std::uint64_t keyHash(std::string_view key) noexcept {
  const char* bytes = key.data();
  std::size_t left = key.size();
  std::uint64_t state = kSeed ^ left;
  for (; left > 16; bytes += 16, left -= 16) {
    state = fold(word(bytes, 8) ^ kFactor, word(bytes + 8, 8) ^ state);
  }
  // The rest as two words; where they overlap, the length tells keys apart.
  std::uint64_t first = 0;
  std::uint64_t second = 0;
  if (left >= 8) {
    first = word(bytes, 8);
    second = word(bytes + left - 8, 8);
  } else if (left >= 4) {
    first = word(bytes, 4);
    second = word(bytes + left - 4, 4);
  } else if (left > 0) {
    first = word(bytes, 1) | word(bytes + left / 2, 1) << 8 | word(bytes + left - 1, 1) << 16;
  }
  return fold(kFactor, fold(first ^ kFactor, second ^ state) ^ kSeed);
}

std::uint64_t keyHash(std::uint64_t number) noexcept { return fold(number ^ kSeed, kFactor); }

}  // namespace plist
