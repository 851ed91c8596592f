#include "plist/BinaryFile.h"

#include "plist/Document.h"

namespace plist::binary {
namespace {

constexpr std::uint8_t kWidest = 8;

bool isWidth(std::uint8_t size) { return size >= 1 && size <= kWidest; }

/// Whether numbers of `size` bytes go beyond `number`, as the platform asks of both widths.
bool reaches(std::uint8_t size, std::uint64_t number) {
  return size == kWidest || number >> (8 * size) == 0;
}

/// The bytes that follow the first one of an object that is not counted.
std::uint64_t fixedSize(const Object& object) {
  switch (object.marker) {
    case Marker::Integer:
    case Marker::Real:
    case Marker::Date:
      return std::uint64_t{1} << object.low;
    case Marker::Uid:
      return std::uint64_t{object.low} + 1;
    default:
      return 0;
  }
}

}  // namespace

File::File(std::string_view bytes) {
  if (bytes.size() < kMagic.size() + 1 + kTrailerSize) throw Unreadable("too short for a trailer");
  const std::size_t trailerAt = bytes.size() - kTrailerSize;
  const char* const trailer = bytes.data() + trailerAt;
  // The first five bytes mean nothing, the sixth is a version that no reader looks at.
  offsetSize_ = static_cast<std::uint8_t>(trailer[6]);
  referenceSize_ = static_cast<std::uint8_t>(trailer[7]);
  objectCount_ = bigEndian(trailer + 8, 8);
  topObject_ = bigEndian(trailer + 16, 8);
  const std::uint64_t tableAt = bigEndian(trailer + 24, 8);

  if (!isWidth(offsetSize_)) throw Unreadable("bad width of offsets", trailerAt + 6);
  if (!isWidth(referenceSize_)) throw Unreadable("bad width of references", trailerAt + 7);
  if (objectCount_ == 0) throw Unreadable("no objects", trailerAt + 8);
  if (topObject_ >= objectCount_) throw Unreadable("no such top object", trailerAt + 16);
  if (tableAt <= kMagic.size() || tableAt >= trailerAt) {
    throw Unreadable("offset table outside the file", trailerAt + 24);
  }
  if (objectCount_ > trailerAt || objectCount_ * offsetSize_ != trailerAt - tableAt) {
    throw Unreadable("offset table of the wrong size", trailerAt + 8);
  }
  if (!reaches(referenceSize_, objectCount_)) {
    throw Unreadable("references too narrow for the objects", trailerAt + 7);
  }
  if (!reaches(offsetSize_, tableAt)) {
    throw Unreadable("offsets too narrow for the file", trailerAt + 6);
  }
  objects_ = bytes.substr(0, tableAt);
  table_ = bytes.substr(tableAt, trailerAt - tableAt);
  const auto setUnit = [&](Marker marker, int size) {
    unitSize_[static_cast<std::size_t>(marker)] = static_cast<std::uint8_t>(size);
  };
  setUnit(Marker::Data, 1);
  setUnit(Marker::Ascii, 1);
  setUnit(Marker::Utf16, 2);
  setUnit(Marker::Array, referenceSize_);
  setUnit(Marker::Dictionary, 2 * referenceSize_);
}

void File::refuse(const char* reason, std::size_t offset) { throw Unreadable(reason, offset); }

std::uint64_t File::readLength(std::size_t& at) const {
  const auto first = at < objects_.size() ? static_cast<std::uint8_t>(objects_[at]) : 0U;
  const std::size_t width = std::size_t{1} << (first & 0xF);
  if (Marker{static_cast<std::uint8_t>(first >> 4)} != Marker::Integer || width > kWidest ||
      width > objects_.size() - at - 1) {
    throw Unreadable("bad length", at);
  }
  const std::uint64_t length = bigEndian(objects_.data() + at + 1, width);
  at += 1 + width;
  return length;
}

Object File::object(std::uint64_t number) const {
  const std::size_t offset = bigEndian(table_.data() + number * offsetSize_, offsetSize_);
  if (offset < kMagic.size() || offset >= objects_.size()) {
    throw Unreadable("object outside the file", objects_.size() + number * offsetSize_);
  }
  const auto first = static_cast<std::uint8_t>(objects_[offset]);
  Object object{Marker{static_cast<std::uint8_t>(first >> 4)},
                static_cast<std::uint8_t>(first & 0xF),
                offset,
                first & 0xFU,
                {}};
  std::size_t at = offset + 1;
  std::uint64_t size = fixedSize(object);
  if (const std::uint64_t unit = unitSize_[first >> 4]; unit != 0) {
    if (object.low == kLongLength) object.count = readLength(at);
    // No count beyond the bytes there are is multiplied, so nothing overflows.
    if (object.count > objects_.size()) throw Unreadable("object longer than the file", offset);
    size = object.count * unit;
  }
  if (size > objects_.size() - at) throw Unreadable("object longer than the file", offset);
  object.bytes = objects_.substr(at, size);
  return object;
}

}  // namespace plist::binary
