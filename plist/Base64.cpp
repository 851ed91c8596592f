#include <array>
#include <cstdint>

#include "plist/Scalars.h"

namespace plist {
namespace {

constexpr std::string_view kAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::int8_t kForeign = -1;
constexpr std::int8_t kWhite = -2;

constexpr std::array<std::int8_t, 256> makeDigits() {
  std::array<std::int8_t, 256> digits{};
  digits.fill(kForeign);
  for (const char white : {' ', '\t', '\r', '\n'})
    digits[static_cast<std::uint8_t>(white)] = kWhite;
  for (std::size_t at = 0; at < kAlphabet.size(); ++at) {
    digits[static_cast<std::uint8_t>(kAlphabet[at])] = static_cast<std::int8_t>(at);
  }
  return digits;
}
constexpr std::array<std::int8_t, 256> kDigits = makeDigits();

}  // namespace

bool decodeBase64(std::string& text, std::size_t from) {
  std::size_t out = from;
  std::size_t digits = 0;
  std::size_t padding = 0;
  std::uint32_t bits = 0;  // the digits of the group so far
  for (std::size_t at = from; at < text.size(); ++at) {
    if (text[at] == '=') {
      ++padding;
      continue;
    }
    const std::int8_t digit = kDigits[static_cast<std::uint8_t>(text[at])];
    if (digit == kWhite) continue;
    if (digit == kForeign || padding > 0) return false;
    bits = bits << 6 | static_cast<std::uint32_t>(digit);
    if (++digits % 4 != 0) continue;
    text[out++] = static_cast<char>(bits >> 16);
    text[out++] = static_cast<char>(bits >> 8 & 0xFF);
    text[out++] = static_cast<char>(bits & 0xFF);
    bits = 0;
  }
  const std::size_t left = digits % 4;
  if (left == 1 || padding != (4 - left) % 4) return false;
  if (left == 2) {
    if ((bits & 0xF) != 0) return false;
    text[out++] = static_cast<char>(bits >> 4);
  } else if (left == 3) {
    if ((bits & 0x3) != 0) return false;
    text[out++] = static_cast<char>(bits >> 10);
    text[out++] = static_cast<char>(bits >> 2 & 0xFF);
  }
  text.resize(out);
  return true;
}

void appendBase64(std::string_view bytes, std::size_t indent, std::size_t width, std::string& out) {
  std::size_t column = 0;
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    if (column == 0) out.append(indent, '\t');
    const std::string_view group = bytes.substr(at, 3);
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < 3; ++i) {
      bits = bits << 8 | (i < group.size() ? static_cast<std::uint8_t>(group[i]) : 0U);
    }
    for (std::size_t i = 0; i < 4; ++i) {
      out.push_back(i <= group.size() ? kAlphabet[bits >> (18 - 6 * i) & 0x3F] : '=');
    }
    column += 4;
    if (column == width || at + 3 >= bytes.size()) {
      out.push_back('\n');
      column = 0;
    }
  }
}

}  // namespace plist
