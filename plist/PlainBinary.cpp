#include "plist/PlainBinary.h"

#include <utility>
#include <vector>

#include "plist/BinaryFile.h"
#include "plist/BinaryScalars.h"
#include "plist/Nodes.h"
#include "plist/PutBinary.h"
#include "plist/ReadBinary.h"
#include "plist/Text.h"

namespace plist {
namespace {

using binary::File;
using binary::Marker;
using binary::Object;

/// Whether a file of that size cannot go beyond the limits, whatever text it holds: two bytes of
/// UTF-16 become three at most.
bool isWithin(std::size_t bytes, const Limits& limits) {
  const std::size_t text = bytes + bytes / 2;
  return bytes <= limits.bytes && text <= limits.text && text <= Internals::kMaxSize;
}

/// Goes through a file from its first object to its last: nothing may lie between them, and each
/// is to be referred to once, in that order. So nothing can be shared, lie over something else, or
/// contain itself.
class Survey {
 public:
  Survey(std::string_view bytes, const Limits& limits)
      : bytes_(bytes), file_(bytes), limits_(limits) {}

  /// Throws Unreadable where a value is none.
  bool isPlain() {
    if (file_.topObject() != 0 || file_.objectCount() > limits_.nodes) return false;
    if (file_.object(0).marker != Marker::Dictionary) return false;
    for (std::uint64_t number = 0; number < file_.objectCount(); ++number) {
      if (number == levelEnd_ && !goDeeper()) return false;
      if (file_.offset(number) != end_ || end_ >= file_.tableAt()) return false;
      if (!passShortText() && !pass(number)) return false;
    }
    return referred_ == file_.objectCount() && end_ == file_.tableAt();
  }

 private:
  /// All elements of one depth come before those of the next, if somebody refers to any there.
  bool goDeeper() {
    ++depth_;
    return std::exchange(levelEnd_, referred_) < referred_;
  }

  /// Passes by what most objects are, with no more work than it takes; false where there is
  /// something else.
  bool passShortText() {
    const std::size_t size = static_cast<std::uint8_t>(bytes_[end_]) - kEmptyText;
    if (size >= binary::kLongLength || size >= file_.tableAt() - end_) return false;
    if (!isAscii(bytes_.substr(end_ + 1, size))) return false;
    end_ += 1 + size;
    return true;
  }

  /// Passes by any object; false where it is not laid out plainly.
  bool pass(std::uint64_t number) {
    const Object object = file_.object(number);
    end_ = file_.endOf(object);
    if (isKey(number) && !object.isText()) return false;
    switch (object.marker) {
      case Marker::Ascii:
        return isAscii(object.bytes);
      case Marker::Utf16:
      case Marker::Data:
        return true;
      case Marker::Array:
        return refersToNext(object, object.count);
      case Marker::Dictionary:
        keys_.push_back({referred_, referred_ + object.count});
        return refersToNext(object, 2 * object.count);
      default:
        binary::readScalar(object);
        return true;
    }
  }

  bool refersToNext(const Object& container, std::uint64_t count) {
    if (depth_ > limits_.depth) return false;
    for (std::uint64_t index = 0; index < count; ++index) {
      if (file_.reference(container, index) != referred_ + index) return false;
    }
    referred_ += count;
    return true;
  }

  bool isKey(std::uint64_t number) {
    while (nextKeys_ < keys_.size() && number >= keys_[nextKeys_].end) ++nextKeys_;
    return nextKeys_ < keys_.size() && number >= keys_[nextKeys_].begin;
  }

  /// The numbers of a dictionary's keys.
  struct Keys {
    std::uint64_t begin;
    std::uint64_t end;
  };

  static constexpr unsigned kEmptyText = static_cast<unsigned>(Marker::Ascii) << 4;

  const std::string_view bytes_;
  const File file_;
  const Limits& limits_;
  std::size_t end_ = binary::kMagic.size();  // of the objects so far
  std::uint64_t referred_ = 1;               // to so many objects, the first among them
  std::uint64_t levelEnd_ = 0;
  std::uint32_t depth_ = 0;
  std::vector<Keys> keys_;
  std::size_t nextKeys_ = 0;
};

bool isPlain(std::string_view bytes, const Limits& limits) {
  try {
    return bytes.starts_with(binary::kMagic) && Survey(bytes, limits).isPlain();
  } catch (const Unreadable&) {
    return false;  // for those to say who read the file
  }
}

std::string fromUtf16(std::string_view units) {
  std::string text;
  appendUtf16(units, text);
  return text;
}

bool isEqual(const Object& text, std::string_view other) {
  return text.marker == Marker::Ascii ? text.bytes == other : fromUtf16(text.bytes) == other;
}

/// The number of the object that is the value of the key. The first of equal keys counts.
std::optional<std::uint64_t> valueOf(const File& file, std::string_view key) {
  const std::uint64_t count = file.object(0).count;
  for (std::uint64_t index = 1; index <= count; ++index) {
    if (isEqual(file.object(index), key)) return index + count;
  }
  return {};
}

}  // namespace

std::optional<PlainBinary> PlainBinary::in(std::string& bytes, const Limits& limits) {
  if (!isWithin(bytes.size(), limits) || !isPlain(bytes, limits)) return {};
  return PlainBinary(std::move(bytes), limits);
}

std::optional<Value> PlainBinary::find(std::string_view key) const {
  const File file(bytes_);
  const std::optional<std::uint64_t> number = valueOf(file, key);
  if (!number) return {};
  const Object object = file.object(*number);
  switch (object.marker) {
    case Marker::Ascii:
      return Value::string(object.bytes);
    case Marker::Utf16:
      return Value::string(fromUtf16(object.bytes));
    case Marker::Data:
      return Value::data(object.bytes);
    case Marker::Array:
    case Marker::Dictionary:
      return *dictionary().find(key);
    default:
      return binary::readScalar(object);
  }
}

Dictionary PlainBinary::dictionary() const { return *readBinary(bytes_, limits_).dictionary(); }

bool PlainBinary::set(std::string_view key, const Value& value) {
  const File file(bytes_);
  const std::optional<std::uint64_t> number = valueOf(file, key);
  if (!number || value.type() >= Type::Array) return false;
  const Object old = file.object(*number);
  if (old.isContainer()) return false;
  std::string written(binary::objectSize(value), '\0');
  binary::putObject(value, written.data());
  return replace(old.offset, file.endOf(old) - old.offset, written, *number);
}

bool PlainBinary::replace(std::size_t offset, std::size_t size, std::string_view written,
                          std::uint64_t number) {
  const File file(bytes_);
  const std::uint64_t objects = file.objectCount();
  const std::size_t width = file.offsetSize();
  const std::size_t more = written.size() - size;  // less than none wraps around, and back again
  const std::size_t tableAt = file.tableAt() + more;
  if (more == 0) {
    bytes_.replace(offset, size, written);
    return true;
  }
  if (binary::widthFor(tableAt) != width || !isWithin(bytes_.size() + more, limits_)) return false;
  bytes_.replace(offset, size, written);
  char* entry = bytes_.data() + tableAt + (number + 1) * width;
  for (std::uint64_t later = number + 1; later < objects; ++later) {
    entry = binary::put(binary::bigEndian(entry, width) + more, width, entry);
  }
  binary::put(tableAt, sizeof(std::uint64_t), entry + binary::kTableAtInTrailer);
  return true;
}

}  // namespace plist
