#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "plist/Value.h"

/// How values are written as objects of a binary file.
namespace plist::binary {

/// The least width, of 1, 2, 4 and 8 bytes, for numbers up to `number`.
inline std::uint8_t widthFor(std::uint64_t number) noexcept {
  return std::bit_ceil(static_cast<std::uint8_t>((std::bit_width(number | 1) + 7) / 8));
}

/// Writes the low bytes of the number, the high one of them first, and answers where they end;
/// `width` is 1, 2, 4 or 8.
inline char* put(std::uint64_t number, std::size_t width, char* out) noexcept {
  number <<= 64 - 8 * width;
  if constexpr (std::endian::native == std::endian::little) number = __builtin_bswap64(number);
  // Copies of constant size are single stores.
  switch (width) {
    case 1:
      std::memcpy(out, &number, 1);
      break;
    case 2:
      std::memcpy(out, &number, 2);
      break;
    case 4:
      std::memcpy(out, &number, 4);
      break;
    default:
      std::memcpy(out, &number, 8);
  }
  return out + width;
}

/// What an object takes in the file, in bytes, but for the references of a container.
std::size_t objectSize(const Value& value) noexcept;

/// Writes an object, but for the references of a container, which follow it: objectSize() bytes.
/// Answers where they end.
char* putObject(const Value& value, char* out) noexcept;

}  // namespace plist::binary
