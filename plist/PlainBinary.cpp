#include "plist/PlainBinary.h"

#include <algorithm>
#include <utility>

#include "plist/BinaryFile.h"
#include "plist/BinaryScalars.h"
#include "plist/Nodes.h"
#include "plist/PlainLayout.h"
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
  const std::uint64_t mostText = std::min<std::uint64_t>(limits.text, Internals::kMaxSize);
  return bytes <= limits.bytes && bytes + bytes / 2 <= mostText;
}

std::string fromUtf16(std::string_view units) {
  std::string text;
  appendUtf16(units, text);
  return text;
}

bool isEqual(const Object& text, std::string_view other) {
  if (text.marker == Marker::Ascii) return text.bytes == other;
  return fromUtf16(text.bytes) == other;
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
  if (!isWithin(bytes.size(), limits) || !isLaidOutPlainly(bytes, limits)) return {};
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

Dictionary PlainBinary::with(std::string_view key, Value value) const {
  std::string bytes = bytes_;
  const File file(bytes);
  const Object root = file.object(0);
  if (const std::optional<std::uint64_t> number = valueOf(file, key)) {
    // The key stands for its value as well, so that nobody refers to what that was.
    const std::size_t width = root.bytes.size() / (2 * root.count);
    char* const references = bytes.data() + file.endOf(root) - root.bytes.size();
    std::copy_n(references + (*number - root.count - 1) * width, width,
                references + (*number - 1) * width);
  }
  Dictionary all = *readBinary(std::move(bytes), limits_).dictionary();
  all.set(key, std::move(value));
  return all;
}

bool PlainBinary::holds(std::string_view key, const Value& value) const {
  const File file(bytes_);
  const std::optional<std::uint64_t> number = valueOf(file, key);
  if (!number) return false;
  const Object list = file.object(*number);
  const Array* const array = value.array();
  if (list.marker != Marker::Array || array == nullptr) return find(key) == value;
  if (list.count != array->size()) return false;
  for (std::uint64_t index = 0; index < list.count; ++index) {
    const Object element = file.object(file.reference(list, index));
    const std::optional<std::string_view> text = (*array)[index].string();
    if (!element.isText() || !text) return find(key) == value;
    if (!isEqual(element, *text)) return false;
  }
  return true;
}

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
