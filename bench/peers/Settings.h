#pragma once

#include <cstddef>
#include <string>

namespace bench {

/// The key of a setting: "key00000" for the first. Keys sort as they are numbered.
inline std::string keyOf(std::size_t number) {
  const std::string digits = std::to_string(number);
  return "key" + std::string(digits.size() < 5 ? 5 - digits.size() : 0, '0') + digits;
}

/// The integer that changes and read is the one setting that every peer is asked for.
inline constexpr const char* changedKey = "key00002";

/// Calls `put(key, value)` for each of `count` settings: half are texts (`std::string`), a quarter
/// integers (`int`), a quarter booleans (`bool`).
template <class Put>
void forEachSetting(std::size_t count, Put&& put) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::string key = keyOf(i);
    switch (i % 4) {
      case 2:
        put(key, static_cast<int>(i));
        break;
      case 3:
        put(key, i % 8 == 3);
        break;
      default:
        put(key, "value " + key.substr(3));
    }
  }
}

/// A `put` of one function for each kind of value.
template <class... Functions>
struct Puts : Functions... {
  using Functions::operator()...;
};

}  // namespace bench
