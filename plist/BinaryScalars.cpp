#include "plist/BinaryScalars.h"

#include <algorithm>
#include <bit>
#include <cstdint>

#include "plist/Document.h"

namespace plist::binary {
namespace {

/// Two's complement of 16 bytes, of which a number in range needs the lower half and a sign.
Value readLongInteger(const Object& object) {
  const std::uint64_t high = bigEndian(object.bytes.data(), 8);
  const std::uint64_t low = bigEndian(object.bytes.data() + 8, 8);
  const auto negative = static_cast<std::int64_t>(low);
  if (high == 0) return Value::integer(low);
  if (high == ~std::uint64_t{0} && negative < 0) return Value::integer(negative);
  throw Unreadable("integer out of range", object.offset);
}

Value readUid(const Object& object) {
  constexpr std::size_t kBytes = sizeof(std::uint32_t);
  const std::size_t width = std::min(object.bytes.size(), kBytes);
  const std::string_view leading = object.bytes.substr(0, object.bytes.size() - width);
  if (leading.find_first_not_of('\0') != std::string_view::npos) {
    throw Unreadable("UID out of range", object.offset);
  }
  return Value::uid(
      static_cast<std::uint32_t>(bigEndian(object.bytes.data() + leading.size(), width)));
}

}  // namespace

Value readScalar(const Object& object) {
  const auto number = [&](std::size_t size) { return bigEndian(object.bytes.data(), size); };
  const std::size_t size = object.bytes.size();
  switch (object.marker) {
    case Marker::Simple:
      if (object.low == binary::kFalse || object.low == binary::kTrue) {
        return Value(object.low == binary::kTrue);
      }
      break;
    case Marker::Integer:
      if (size < 8) return Value::integer(number(size));
      if (size == 8) return Value::integer(static_cast<std::int64_t>(number(8)));
      if (size == 16) return readLongInteger(object);
      break;
    case Marker::Real:
      if (size == 4)
        return Value::real(std::bit_cast<float>(static_cast<std::uint32_t>(number(4))));
      if (size == 8) return Value::real(std::bit_cast<double>(number(8)));
      break;
    case Marker::Date:
      if (size == 8) return Value::date(std::bit_cast<double>(number(8)));
      break;
    case Marker::Uid:
      return readUid(object);
    default:
      break;
  }
  throw Unreadable("object of no known type", object.offset);
}

}  // namespace plist::binary
