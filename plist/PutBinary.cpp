#include "plist/PutBinary.h"

#include <algorithm>
#include <string_view>

#include "plist/BinaryFile.h"
#include "plist/Nodes.h"
#include "plist/Text.h"

namespace plist::binary {
namespace {

using Kind = Internals::Kind;

char* putHead(Marker marker, std::uint64_t low, char* out) {
  *out = static_cast<char>(static_cast<std::uint64_t>(marker) << 4 | low);
  return out + 1;
}

char* putUnsigned(std::uint64_t number, char* out) {
  const std::uint8_t width = widthFor(number);
  out = putHead(Marker::Integer, static_cast<std::uint64_t>(std::countr_zero(width)), out);
  return put(number, width, out);
}

char* putCounted(Marker marker, std::uint64_t count, char* out) {
  if (count < kLongLength) return putHead(marker, count, out);
  return putUnsigned(count, putHead(marker, kLongLength, out));
}

char* putText(std::string_view text, char* out) {
  if (isAscii(text)) {
    out = putCounted(Marker::Ascii, text.size(), out);
    return std::copy(text.begin(), text.end(), out);
  }
  return toUtf16(text, putCounted(Marker::Utf16, utf16Length(text), out));
}

std::size_t headSize(std::uint64_t count) { return count < kLongLength ? 1 : 2 + widthFor(count); }

std::size_t textSize(std::string_view text) {
  if (isAscii(text)) return headSize(text.size()) + text.size();
  const std::size_t units = utf16Length(text);
  return headSize(units) + 2 * units;
}

}  // namespace

std::size_t objectSize(const Value& value) noexcept {
  switch (Internals::kind(value)) {
    case Kind::Boolean:
      return 1;
    case Kind::Integer:
    case Kind::Uid:
      return 1 + std::size_t{widthFor(Internals::bits(value))};
    case Kind::Large:
      return 17;
    case Kind::Single:
      return 5;
    case Kind::Double:
    case Kind::Date:
      return 9;
    case Kind::String:
      return textSize(Internals::slice(value));
    case Kind::Data:
      return headSize(Internals::slice(value).size()) + Internals::slice(value).size();
    case Kind::Array:
      return headSize(value.array()->size());
    case Kind::Dictionary:
      break;
  }
  return headSize(value.dictionary()->size());
}

char* putObject(const Value& value, char* out) noexcept {
  const Kind kind = Internals::kind(value);
  const std::uint64_t bits = kind < Kind::String ? Internals::bits(value) : 0;
  switch (kind) {
    case Kind::Boolean:
      return putHead(Marker::Simple, bits == 0 ? kFalse : kTrue, out);
    case Kind::Integer:
      return putUnsigned(bits, out);  // negative numbers look like large ones, so take 8 bytes
    case Kind::Large:
      // 8 bytes are signed, so a number beyond them takes 16.
      return put(bits, 8, put(0, 8, putHead(Marker::Integer, 4, out)));
    case Kind::Single:
      return put(bits, 4, putHead(Marker::Real, 2, out));
    case Kind::Double:
      return put(bits, 8, putHead(Marker::Real, 3, out));
    case Kind::Date:
      return put(bits, 8, putHead(Marker::Date, 3, out));
    case Kind::Uid:
      return put(bits, widthFor(bits), putHead(Marker::Uid, widthFor(bits) - 1U, out));
    case Kind::String:
      return putText(Internals::slice(value), out);
    case Kind::Data: {
      const std::string_view data = Internals::slice(value);
      return std::copy(data.begin(), data.end(), putCounted(Marker::Data, data.size(), out));
    }
    case Kind::Array:
      return putCounted(Marker::Array, value.array()->size(), out);
    case Kind::Dictionary:
      break;
  }
  return putCounted(Marker::Dictionary, value.dictionary()->size(), out);
}

}  // namespace plist::binary
