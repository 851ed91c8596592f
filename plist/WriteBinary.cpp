#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

#include "plist/BinaryFile.h"
#include "plist/Document.h"
#include "plist/Nodes.h"
#include "plist/SharedPlaces.h"
#include "plist/Text.h"

namespace plist {
namespace {

using binary::Marker;
using Kind = Internals::Kind;

/// The least width, of 1, 2, 4 and 8 bytes, for numbers up to `number`.
std::uint8_t widthFor(std::uint64_t number) {
  return std::bit_ceil(static_cast<std::uint8_t>((std::bit_width(number | 1) + 7) / 8));
}

/// Writes the low bytes of the number, the high one of them first; `width` is 1, 2, 4 or 8.
char* put(std::uint64_t number, std::size_t width, char* out) {
  number <<= 64 - 8 * width;
  if constexpr (std::endian::native == std::endian::little) number = __builtin_bswap64(number);
  // Copies of constant size are single stores.
  switch (width) {
    case 1:
      std::memcpy(out, &number, 1);
      break;
    case 2:
      std::memcpy(out, &number, 2);
      break;
    case 4:
      std::memcpy(out, &number, 4);
      break;
    default:
      std::memcpy(out, &number, 8);
  }
  return out + width;
}

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
  if (count < binary::kLongLength) return putHead(marker, count, out);
  return putUnsigned(count, putHead(marker, binary::kLongLength, out));
}

char* putText(std::string_view text, char* out) {
  if (isAscii(text)) {
    out = putCounted(Marker::Ascii, text.size(), out);
    return std::copy(text.begin(), text.end(), out);
  }
  return toUtf16(text, putCounted(Marker::Utf16, utf16Length(text), out));
}

std::size_t headSize(std::uint64_t count) {
  return count < binary::kLongLength ? 1 : 2 + widthFor(count);
}

std::size_t textSize(std::string_view text) {
  if (isAscii(text)) return headSize(text.size()) + text.size();
  const std::size_t units = utf16Length(text);
  return headSize(units) + 2 * units;
}

/// What an object takes in the file, but for the references of a container.
std::size_t objectSize(const Value& value) {
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

/// Numbers the objects: the root first, then the elements of each container one after another, so
/// that the list itself is the queue of containers to go through.
class Numbering {
 public:
  explicit Numbering(const Value& root) {
    next(root);
    // NOLINTNEXTLINE(modernize-loop-convert): the list grows as it is gone through
    for (std::size_t at = 0; at < objects.size(); ++at) {
      if (const Array* const array = objects[at]->array()) {
        makeRoom(array->size());
        for (const Value& item : *array) add(item);
      } else if (const Dictionary* const dictionary = objects[at]->dictionary()) {
        makeRoom(2 * dictionary->size());
        for (const Dictionary::Entry& entry : *dictionary) add(Internals::key(entry));
        for (const Dictionary::Entry& entry : *dictionary) add(entry.value());
      }
    }
  }

  std::vector<const Value*> objects;      ///< By number.
  std::vector<std::uint32_t> references;  ///< Of all containers in their order, keys before values.
  std::size_t size = 0;                   ///< Of the objects in bytes, but for the references.

 private:
  void add(const Value& value) {
    const bool isNew = !SharedPlaces::isShared(value) || places_.isNew(value);
    references.push_back(isNew ? next(value) : share(value));
  }

  std::uint32_t next(const Value& value) {
    objects.push_back(&value);
    size += objectSize(value);
    return static_cast<std::uint32_t>(objects.size() - 1);
  }

  /// Room for the elements of a container at once, and for more than one small container.
  void makeRoom(std::size_t count) {
    if (references.capacity() - references.size() >= count) return;
    const std::size_t most = std::max(2 * references.capacity(), references.size() + count);
    references.reserve(most);
    objects.reserve(most + 1);
  }

  std::uint32_t share(const Value& value) {
    std::uint32_t& slot = places_.slot(value, objects);
    if (slot == KeyIndex::kFree) slot = next(value) + 1;
    return slot - 1;
  }

  SharedPlaces places_;
};

/// Fills a file whose size is known from the start, objects and table side by side.
class BinaryWriter {
 public:
  explicit BinaryWriter(const Value& root)
      : numbering_(root),
        nextReference_(numbering_.references.begin()),
        referenceSize_(widthFor(numbering_.objects.size())),
        tableAt_(binary::kMagic.size() + numbering_.size +
                 numbering_.references.size() * referenceSize_),
        offsetSize_(widthFor(tableAt_)),
        bytes_(tableAt_ + numbering_.objects.size() * offsetSize_ + binary::kTrailerSize, '\0') {}

  std::string write() && {
    char* const start = bytes_.data();
    char* object = std::copy(binary::kMagic.begin(), binary::kMagic.end(), start);
    char* entry = start + tableAt_;
    for (const Value* const value : numbering_.objects) {
      const auto offset = static_cast<std::uint64_t>(object - start);
      object = writeObject(*value, object);
      entry = put(offset, offsetSize_, entry);
    }
    writeTrailer(entry);
    return std::move(bytes_);
  }

 private:
  char* writeObject(const Value& value, char* out);
  char* writeReferences(std::size_t count, char* out);
  void writeTrailer(char* out);

  Numbering numbering_;
  std::vector<std::uint32_t>::const_iterator nextReference_;
  std::uint8_t referenceSize_;
  std::size_t tableAt_;
  std::uint8_t offsetSize_;
  std::string bytes_;
};

char* BinaryWriter::writeObject(const Value& value, char* out) {
  const Kind kind = Internals::kind(value);
  const std::uint64_t bits = kind < Kind::String ? Internals::bits(value) : 0;
  switch (kind) {
    case Kind::Boolean:
      return putHead(Marker::Simple, bits == 0 ? binary::kFalse : binary::kTrue, out);
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
    case Kind::Array: {
      const std::size_t count = value.array()->size();
      return writeReferences(count, putCounted(Marker::Array, count, out));
    }
    case Kind::Dictionary:
      break;
  }
  const std::size_t count = value.dictionary()->size();
  return writeReferences(2 * count, putCounted(Marker::Dictionary, count, out));
}

char* BinaryWriter::writeReferences(std::size_t count, char* out) {
  for (; count > 0; --count) out = put(*nextReference_++, referenceSize_, out);
  return out;
}

void BinaryWriter::writeTrailer(char* out) {
  out += 6;  // unused, and a version that no reader looks at
  out = put(offsetSize_, 1, out);
  out = put(referenceSize_, 1, out);
  out = put(numbering_.objects.size(), 8, out);
  out = put(0, 8, out);  // the top object
  put(tableAt_, 8, out);
}

}  // namespace

std::string writeBinary(const Value& value) { return BinaryWriter(value).write(); }

}  // namespace plist
