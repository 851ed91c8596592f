#include "plist/Text.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace plist {
namespace {

using Unit = std::uint16_t;

constexpr std::uint32_t kHighSurrogate = 0xD800;
constexpr std::uint32_t kLowSurrogate = 0xDC00;
constexpr std::uint32_t kSurrogatesEnd = 0xE000;
constexpr std::uint32_t kFirstPaired = 0x10000;
constexpr std::uint32_t kCodePointsEnd = 0x110000;

bool isHighSurrogate(std::uint32_t unit) { return unit >= kHighSurrogate && unit < kLowSurrogate; }
bool isLowSurrogate(std::uint32_t unit) { return unit >= kLowSurrogate && unit < kSurrogatesEnd; }

std::uint8_t byteAt(std::string_view bytes, std::size_t at) {
  return static_cast<std::uint8_t>(bytes[at]);
}

/// The sequences of UTF-8 by length: what the first byte looks like, the least code point.
struct Sequence {
  std::uint8_t mask;
  std::uint8_t lead;
  std::uint32_t least;
};
constexpr std::array<Sequence, 4> kSequences = {
    {{0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, kFirstPaired}}};

struct CodePoint {
  std::uint32_t value;
  std::size_t length;  ///< In bytes; 0 where the bytes are no sequence at all.
};

CodePoint decode(std::string_view bytes, std::size_t at) {
  const std::uint8_t first = byteAt(bytes, at);
  for (std::size_t more = 0; more < kSequences.size(); ++more) {
    const Sequence& sequence = kSequences[more];
    if ((first & sequence.mask) != sequence.lead) continue;
    if (bytes.size() - at <= more) break;
    std::uint32_t value = first & static_cast<std::uint8_t>(~sequence.mask);
    for (std::size_t next = 1; next <= more; ++next) {
      const std::uint8_t byte = byteAt(bytes, at + next);
      if ((byte & 0xC0) != 0x80) return {0, 0};
      value = value << 6 | (byte & 0x3FU);
    }
    if (value < sequence.least || value >= kCodePointsEnd) break;
    return {value, more + 1};
  }
  return {0, 0};
}

void encode(std::uint32_t value, std::string& out) {
  std::size_t more = 0;
  while (more + 1 < kSequences.size() && value >= kSequences[more + 1].least) ++more;
  out.push_back(static_cast<char>(kSequences[more].lead | value >> (6 * more)));
  for (; more > 0; --more) {
    out.push_back(static_cast<char>(0x80 | (value >> (6 * (more - 1)) & 0x3F)));
  }
}

Unit unitAt(std::string_view units, std::size_t at) {
  return static_cast<Unit>(byteAt(units, at) << 8 | byteAt(units, at + 1));
}

char* putUnit(std::uint32_t unit, char* out) {
  *out++ = static_cast<char>(unit >> 8);
  *out++ = static_cast<char>(unit & 0xFF);
  return out;
}

}  // namespace

bool isAscii(std::string_view bytes) noexcept {
  constexpr std::uint64_t kHighBits = 0x8080808080808080;
  constexpr std::size_t kWord = sizeof(std::uint64_t);
  const auto wordAt = [&](std::size_t at) {
    std::uint64_t word;
    std::memcpy(&word, bytes.data() + at, kWord);
    return word;
  };
  std::uint64_t seen = 0;
  if (bytes.size() < kWord) {
    for (std::size_t at = 0; at < bytes.size(); ++at) seen |= byteAt(bytes, at);
  } else {
    for (std::size_t at = 0; at + kWord < bytes.size(); at += kWord) seen |= wordAt(at);
    seen |= wordAt(bytes.size() - kWord);  // the rest, with some bytes once more
  }
  return (seen & kHighBits) == 0;
}

bool isText(std::string_view bytes) noexcept {
  if (isAscii(bytes)) return true;
  std::uint32_t before = 0;
  for (std::size_t at = 0; at < bytes.size();) {
    const CodePoint point = decode(bytes, at);
    // A pair of surrogates has one form only, the four bytes of the character it stands for.
    if (point.length == 0 || (isHighSurrogate(before) && isLowSurrogate(point.value))) return false;
    before = point.value;
    at += point.length;
  }
  return true;
}

bool fitsXml(std::string_view text) noexcept {
  for (std::size_t at = 0; at < text.size();) {
    const auto [value, length] = decode(text, at);
    if (value < 0x20 && value != '\t' && value != '\n' && value != '\r') return false;
    if (isHighSurrogate(value) || isLowSurrogate(value)) return false;
    if (value == 0xFFFE || value == 0xFFFF) return false;
    at += length;
  }
  return true;
}

void appendUtf16(std::string_view units, std::string& out) {
  for (std::size_t at = 0; at < units.size(); at += 2) {
    std::uint32_t value = unitAt(units, at);
    if (isHighSurrogate(value) && at + 2 < units.size()) {
      const std::uint32_t low = unitAt(units, at + 2);
      if (isLowSurrogate(low)) {
        value = kFirstPaired + ((value - kHighSurrogate) << 10) + (low - kLowSurrogate);
        at += 2;
      }
    }
    encode(value, out);
  }
}

std::size_t utf16Length(std::string_view text) noexcept {
  std::size_t units = 0;
  for (const char byte : text) {
    const auto first = static_cast<std::uint8_t>(byte);
    units += (first & 0xC0) != 0x80;  // each sequence once,
    units += first >= 0xF0;           // and those that are a pair once more
  }
  return units;
}

char* toUtf16(std::string_view text, char* out) noexcept {
  for (std::size_t at = 0; at < text.size();) {
    const auto [value, length] = decode(text, at);
    at += length;
    if (value < kFirstPaired) {
      out = putUnit(value, out);
    } else {
      out = putUnit(kHighSurrogate + ((value - kFirstPaired) >> 10), out);
      out = putUnit(kLowSurrogate + ((value - kFirstPaired) & 0x3FF), out);
    }
  }
  return out;
}

}  // namespace plist
