#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// The binary form, version 00, as CFBinaryPList.c of CoreFoundation describes it: objects one
/// after another, a table of their offsets, and a trailer of 32 bytes that says where the table is.
namespace plist::binary {

inline constexpr std::string_view kMagic = "bplist00";
inline constexpr std::size_t kTrailerSize = 32;
inline constexpr std::size_t kTableAtInTrailer = 24;

/// The high half of an object's first byte; the low half is a length or a width.
enum class Marker : std::uint8_t {
  Simple = 0x0,
  Integer = 0x1,
  Real = 0x2,
  Date = 0x3,
  Data = 0x4,
  Ascii = 0x5,
  Utf16 = 0x6,
  Uid = 0x8,
  Array = 0xA,
  Dictionary = 0xD
};
inline constexpr std::uint8_t kFalse = 0x8;
inline constexpr std::uint8_t kTrue = 0x9;
inline constexpr std::uint8_t kLongLength = 0xF;  // the length follows as an integer

/// The bytes that follow the first one, by that one, of an object that is not counted; else 0.
inline constexpr auto kFixedSize = [] {
  std::array<std::uint16_t, 256> sizes{};
  for (std::size_t low = 0; low < 16; ++low) {
    for (const Marker marker : {Marker::Integer, Marker::Real, Marker::Date}) {
      sizes[static_cast<std::size_t>(marker) << 4 | low] = static_cast<std::uint16_t>(1U << low);
    }
    sizes[static_cast<std::size_t>(Marker::Uid) << 4 | low] = static_cast<std::uint16_t>(low + 1);
  }
  return sizes;
}();

/// An object as it stands in the file.
struct Object {
  Marker marker;
  std::uint8_t low;        ///< The low half of the first byte.
  std::size_t offset;      ///< Of the first byte.
  std::uint64_t count;     ///< Bytes of data or ASCII text, UTF-16 units, elements or entries.
  std::string_view bytes;  ///< What follows, exactly as long as the object says.

  [[nodiscard]] bool isText() const noexcept {
    return marker == Marker::Ascii || marker == Marker::Utf16;
  }
  [[nodiscard]] bool isContainer() const noexcept {
    return marker == Marker::Array || marker == Marker::Dictionary;
  }
};

/// The number of `width` bytes at `at`, the high byte first; 8 bytes have to be readable there, as
/// they are before the end of any trailer. A width above 8 gives none of it.
inline std::uint64_t bigEndian(const char* at, std::size_t width) noexcept {
  std::uint64_t number;
  std::memcpy(&number, at, sizeof(number));
  if constexpr (std::endian::native == std::endian::little) number = __builtin_bswap64(number);
  return number >> (64 - 8 * width);
}

/// A file whose trailer is sound. Nothing that it hands out reaches beyond the bytes; each of its
/// functions throws Unreadable instead.
class File {
 public:
  explicit File(std::string_view bytes);

  [[nodiscard]] std::uint64_t objectCount() const noexcept { return objectCount_; }
  [[nodiscard]] std::uint64_t topObject() const noexcept { return topObject_; }
  /// Where the objects end and the table of their offsets begins.
  [[nodiscard]] std::size_t tableAt() const noexcept { return objects_.size(); }
  /// Bytes of each offset in the table.
  [[nodiscard]] std::uint8_t offsetSize() const noexcept { return offsetSize_; }

  /// Where the table has the object of that number, which is below objectCount().
  [[nodiscard]] std::uint64_t offset(std::uint64_t number) const noexcept {
    return bigEndian(table_.data() + number * offsetSize_, offsetSize_);
  }

  /// The object of that number, which is below objectCount().
  [[nodiscard]] Object object(std::uint64_t number) const {
    const std::size_t offset = this->offset(number);
    if (offset < kMagic.size() || offset >= objects_.size()) {
      refuse("object outside the file", objects_.size() + number * offsetSize_);
    }
    const auto first = static_cast<std::uint8_t>(objects_[offset]);
    const auto low = static_cast<std::uint8_t>(first & 0xF);
    const std::uint8_t unit = unitSize_[first >> 4];
    Object object{Marker{static_cast<std::uint8_t>(first >> 4)}, low, offset, low, {}};
    if (low == kLongLength && unit != 0) {
      setLongBytes(object, unit);
    } else {
      setBytes(object, offset + 1, kFixedSize[first] + std::uint64_t{low} * unit);
    }
    return object;
  }

  /// The offset of the first byte after the object.
  [[nodiscard]] std::size_t endOf(const Object& object) const noexcept {
    return static_cast<std::size_t>(object.bytes.data() - objects_.data()) + object.bytes.size();
  }

  /// The number at `index` of the references that are a container's bytes.
  [[nodiscard]] std::uint64_t reference(const Object& container, std::uint64_t index) const {
    const std::uint64_t number =
        bigEndian(container.bytes.data() + index * referenceSize_, referenceSize_);
    if (number >= objectCount_) refuse("reference to no object", container.offset);
    return number;
  }

 private:
  [[noreturn]] static void refuse(const char* reason, std::size_t offset);
  [[nodiscard]] std::uint64_t readLength(std::size_t& at) const;
  void setLongBytes(Object& object, std::uint64_t unit) const;
  void setBytes(Object& object, std::size_t at, std::uint64_t size) const {
    if (size > objects_.size() - at) refuse("object longer than the file", object.offset);
    object.bytes = {objects_.data() + at, size};
  }

  std::string_view objects_;  // all before the table, the magic included, so offsets are the file's
  std::string_view table_;
  std::uint64_t objectCount_ = 0;
  std::uint64_t topObject_ = 0;
  std::uint8_t offsetSize_ = 0;
  std::uint8_t referenceSize_ = 0;
  std::array<std::uint8_t, 16> unitSize_{};  // by marker: bytes for each that is counted, or none
};

}  // namespace plist::binary
