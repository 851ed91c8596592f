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

}  // namespace

File::File(std::string_view bytes) : bytes_(bytes) {
  if (bytes.size() < kMagic.size() + 1 + kTrailerSize) throw Unreadable("too short for a trailer");
  const std::size_t trailerAt = bytes.size() - kTrailerSize;
  const std::string_view trailer = bytes.substr(trailerAt);
  // The first five bytes mean nothing, the sixth is a version that no reader looks at.
  offsetSize_ = static_cast<std::uint8_t>(trailer[6]);
  referenceSize_ = static_cast<std::uint8_t>(trailer[7]);
  objectCount_ = bigEndian(trailer.substr(8, 8));
  topObject_ = bigEndian(trailer.substr(16, 8));
  const std::uint64_t tableAt = bigEndian(trailer.substr(24, 8));

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
}

std::uint64_t File::reference(const Object& container, std::uint64_t index) const {
  const std::size_t at = index * referenceSize_;
  const std::uint64_t number = bigEndian(container.bytes.substr(at, referenceSize_));
  if (number >= objectCount_) throw Unreadable("reference to no object", container.offset);
  return number;
}

std::uint64_t File::readLength(std::size_t& at) const {
  const auto first = at < objects_.size() ? static_cast<std::uint8_t>(objects_[at]) : 0U;
  const std::size_t width = std::size_t{1} << (first & 0xF);
  if (Marker{static_cast<std::uint8_t>(first >> 4)} != Marker::Integer || width > kWidest ||
      width > objects_.size() - at - 1) {
    throw Unreadable("bad length", at);
  }
  const std::uint64_t length = bigEndian(objects_.substr(at + 1, width));
  at += 1 + width;
  return length;
}

std::uint64_t File::payloadSize(const Object& object) const {
  switch (object.marker) {
    case Marker::Simple:
      return 0;
    case Marker::Integer:
    case Marker::Real:
    case Marker::Date:
      return std::uint64_t{1} << object.low;
    case Marker::Uid:
      return std::uint64_t{object.low} + 1;
    case Marker::Data:
    case Marker::Ascii:
      return object.count;
    case Marker::Utf16:
      return 2 * object.count;
    case Marker::Array:
      return object.count * referenceSize_;
    case Marker::Dictionary:
      return 2 * object.count * referenceSize_;
  }
  throw Unreadable("object of no known type", object.offset);
}

Object File::object(std::uint64_t number) const {
  const std::size_t offset = bigEndian(table_.substr(number * offsetSize_, offsetSize_));
  if (offset < kMagic.size() || offset >= objects_.size()) {
    throw Unreadable("object outside the file", bytes_.size() - kTrailerSize - table_.size());
  }
  const auto first = static_cast<std::uint8_t>(objects_[offset]);
  Object object{Marker{static_cast<std::uint8_t>(first >> 4)},
                static_cast<std::uint8_t>(first & 0xF),
                offset,
                first & 0xFU,
                {}};
  std::size_t at = offset + 1;
  const bool counted = object.marker == Marker::Data || object.marker == Marker::Ascii ||
                       object.marker == Marker::Utf16 || object.marker == Marker::Array ||
                       object.marker == Marker::Dictionary;
  if (counted && object.low == kLongLength) object.count = readLength(at);
  const std::size_t left = objects_.size() - at;
  // No length beyond the bytes left is multiplied, so nothing overflows.
  if (counted && object.count > left) throw Unreadable("object longer than the file", offset);
  const std::uint64_t size = payloadSize(object);
  if (size > left) throw Unreadable("object longer than the file", offset);
  object.bytes = objects_.substr(at, size);
  return object;
}

}  // namespace plist::binary
