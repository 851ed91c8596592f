#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace support {

/// Whether the promises (docs/promises.md) are to be shown in full, which takes hours, as
/// `./test --long` does (`QUILLMERE_LONG=1`); else in the short form of every day.
bool isLong();

/// The number that goes with the form asked for.
template <class Number>
Number inForm(Number brief, Number full) {
  return isLong() ? full : brief;
}

/// With the thousands apart: "10,000".
std::string grouped(std::uint64_t number);

/// Notes a line for the table that `./test` ends with: what was done, what came of it, and what was
/// promised. Nothing is noted where nobody makes a table (`QUILLMERE_FIGURES` names no file).
void note(std::string_view what, std::string_view figure, std::string_view promised);

}  // namespace support
