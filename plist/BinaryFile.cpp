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

File::File(std::string_view bytes) {
  if (bytes.size() < kMagic.size() + 1 + kTrailerSize) throw Unreadable("too short for a trailer");
  const std::size_t trailerAt = bytes.size() - kTrailerSize;
  const char* const trailer = bytes.data() + trailerAt;
  // The first five bytes mean nothing, the sixth is a version that no reader looks at.
  offsetSize_ = static_cast<std::uint8_t>(trailer[6]);
  referenceSize_ = static_cast<std::uint8_t>(trailer[7]);
  objectCount_ = bigEndian(trailer + 8, 8);
  topObject_ = bigEndian(trailer + 16, 8);
  const std::uint64_t tableAt = bigEndian(trailer + kTableAtInTrailer, 8);

  if (!isWidth(offsetSize_)) throw Unreadable("bad width of offsets", trailerAt + 6);
  if (!isWidth(referenceSize_)) throw Unreadable("bad width of references", trailerAt + 7);
  if (objectCount_ == 0) throw Unreadable("no objects", trailerAt + 8);
  if (topObject_ >= objectCount_) throw Unreadable("no such top object", trailerAt + 16);
  if (tableAt <= kMagic.size() || tableAt >= trailerAt) {
    throw Unreadable("offset table outside the file", trailerAt + kTableAtInTrailer);
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

void File::setLongBytes(Object& object, std::uint64_t unit) const {
  std::size_t at = object.offset + 1;
  object.count = readLength(at);
  // No count beyond the bytes there are is multiplied, so nothing overflows.
  if (object.count > objects_.size()) refuse("object longer than the file", object.offset);
  setBytes(object, at, object.count * unit);
}

}  // namespace plist::binary
