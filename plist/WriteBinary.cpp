#include <algorithm>
#include <bit>
#include <cstdint>
#include <utility>
#include <vector>

#include "plist/BinaryFile.h"
#include "plist/Document.h"
#include "plist/Nodes.h"
#include "plist/Text.h"

namespace plist {
namespace {

using binary::Marker;
using Kind = Internals::Kind;

constexpr std::size_t kMostHeadBytes = 16;  // an object's first byte with a length or a number

/// The least width, of 1, 2, 4 and 8 bytes, for numbers up to `number`.
std::uint8_t widthFor(std::uint64_t number) {
  return std::bit_ceil(static_cast<std::uint8_t>((std::bit_width(number | 1) + 7) / 8));
}

char* put(std::uint64_t number, std::size_t width, char* out) {
  for (std::size_t left = width; left > 0; --left) {
    *out++ = static_cast<char>(number >> (8 * (left - 1)) & 0xFF);
  }
  return out;
}

char* putHead(Marker marker, std::uint64_t low, char* out) {
  return put(static_cast<std::uint64_t>(marker) << 4 | low, 1, out);
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

/// Numbers the objects: the root first, then the elements of each container one after another, so
/// that the list itself is the queue of containers to go through.
class Numbering {
 public:
  explicit Numbering(const Value& root) {
    objects.push_back(&root);
    for (std::size_t at = 0; at < objects.size(); ++at) {
      if (const Array* const array = objects[at]->array()) {
        for (const Value& item : *array) add(item);
      } else if (const Dictionary* const dictionary = objects[at]->dictionary()) {
        for (const Dictionary::Entry& entry : *dictionary) add(Internals::key(entry));
        for (const Dictionary::Entry& entry : *dictionary) add(entry.value());
      }
    }
  }

  std::vector<const Value*> objects;      ///< By number.
  std::vector<std::uint32_t> references;  ///< Of all containers in their order, keys before values.

 private:
  void add(const Value& value) {
    const Kind kind = Internals::kind(value);
    references.push_back(kind == Kind::String || kind == Kind::Data ? share(value) : next(value));
  }

  std::uint32_t next(const Value& value) {
    objects.push_back(&value);
    return static_cast<std::uint32_t>(objects.size() - 1);
  }

  /// Text and data that values share in memory they share in the file: a file never grows by being
  /// read and written.
  std::uint32_t share(const Value& value) {
    if (!index_.holds(shared_.size() + 1)) regrow();
    std::uint32_t& slot = index_.slot(hash(value), [&](std::uint32_t at) {
      const Value& other = *objects[shared_[at]];
      return isSame(Internals::slice(other), Internals::slice(value)) &&
             Internals::kind(other) == Internals::kind(value);
    });
    if (slot != KeyIndex::kFree) return shared_[slot - 1];
    shared_.push_back(next(value));
    slot = static_cast<std::uint32_t>(shared_.size());
    return shared_.back();
  }

  void regrow() {
    index_ = KeyIndex::withRoomFor(std::max<std::size_t>(32, 4 * shared_.size()));
    for (std::uint32_t at = 0; at < shared_.size(); ++at) {
      index_.slot(hash(*objects[shared_[at]]), [](std::uint32_t) { return false; }) = at + 1;
    }
  }

  static bool isSame(std::string_view left, std::string_view right) {
    return left.data() == right.data() && left.size() == right.size();
  }
  static std::uint64_t hash(const Value& value) {
    return keyHash(reinterpret_cast<std::uintptr_t>(Internals::slice(value).data()));
  }

  std::vector<std::uint32_t> shared_;  // numbers of the text and data
  KeyIndex index_;
};

class BinaryWriter {
 public:
  explicit BinaryWriter(const Value& root)
      : numbering_(root),
        nextReference_(numbering_.references.begin()),
        referenceSize_(widthFor(numbering_.objects.size())) {}

  std::string write() && {
    end_ = std::copy(binary::kMagic.begin(), binary::kMagic.end(), room(binary::kMagic.size()));
    offsets_.reserve(numbering_.objects.size());
    for (const Value* const object : numbering_.objects) {
      offsets_.push_back(size());
      writeObject(*object);
    }
    writeTable();
    bytes_.resize(size());
    return std::move(bytes_);
  }

 private:
  [[nodiscard]] std::size_t size() const { return static_cast<std::size_t>(end_ - bytes_.data()); }

  /// Where to write next, with room for `count` bytes.
  char* room(std::size_t count) {
    const std::size_t used = size();
    if (bytes_.size() - used < count) {
      bytes_.resize(std::max(2 * bytes_.size(), used + count));
      end_ = bytes_.data() + used;
    }
    return end_;
  }

  void writeObject(const Value& value);
  void writeInteger(const Value& value);
  void writeText(std::string_view text);
  void writeBytes(Marker marker, std::string_view bytes);
  void writeContainer(Marker marker, std::size_t count, std::size_t references);
  void writeTable();

  std::string bytes_ = std::string(1024, '\0');
  char* end_ = bytes_.data();  // of what is written
  Numbering numbering_;
  std::vector<std::uint32_t>::const_iterator nextReference_;
  std::vector<std::uint64_t> offsets_;
  std::uint8_t referenceSize_;
};

void BinaryWriter::writeObject(const Value& value) {
  const std::uint64_t bits = Internals::bits(value);
  char* const out = room(1 + kMostHeadBytes);
  switch (Internals::kind(value)) {
    case Kind::Boolean:
      end_ = putHead(Marker::Simple, bits == 0 ? binary::kFalse : binary::kTrue, out);
      break;
    case Kind::Integer:
      end_ = putUnsigned(bits, out);  // negative numbers look like large ones, so take 8 bytes
      break;
    case Kind::Large:
      // 8 bytes are signed, so a number beyond them takes 16.
      end_ = put(bits, 8, put(0, 8, putHead(Marker::Integer, 4, out)));
      break;
    case Kind::Single:
      end_ = put(bits, 4, putHead(Marker::Real, 2, out));
      break;
    case Kind::Double:
      end_ = put(bits, 8, putHead(Marker::Real, 3, out));
      break;
    case Kind::Date:
      end_ = put(bits, 8, putHead(Marker::Date, 3, out));
      break;
    case Kind::Uid:
      end_ = put(bits, widthFor(bits), putHead(Marker::Uid, widthFor(bits) - 1U, out));
      break;
    case Kind::String:
      writeText(Internals::slice(value));
      break;
    case Kind::Data:
      writeBytes(Marker::Data, Internals::slice(value));
      break;
    case Kind::Array:
      writeContainer(Marker::Array, value.array()->size(), value.array()->size());
      break;
    case Kind::Dictionary:
      writeContainer(Marker::Dictionary, value.dictionary()->size(),
                     2 * value.dictionary()->size());
      break;
  }
}

void BinaryWriter::writeBytes(Marker marker, std::string_view bytes) {
  char* const out = putCounted(marker, bytes.size(), room(kMostHeadBytes + bytes.size()));
  end_ = std::copy(bytes.begin(), bytes.end(), out);
}

void BinaryWriter::writeText(std::string_view text) {
  if (isAscii(text)) {
    writeBytes(Marker::Ascii, text);
    return;
  }
  const std::size_t units = utf16Length(text);
  end_ = toUtf16(text, putCounted(Marker::Utf16, units, room(kMostHeadBytes + 2 * units)));
}

void BinaryWriter::writeContainer(Marker marker, std::size_t count, std::size_t references) {
  char* out = putCounted(marker, count, room(kMostHeadBytes + references * referenceSize_));
  for (; references > 0; --references) out = put(*nextReference_++, referenceSize_, out);
  end_ = out;
}

void BinaryWriter::writeTable() {
  const std::size_t tableAt = size();
  const std::uint8_t width = widthFor(tableAt);
  char* out = room(offsets_.size() * width + binary::kTrailerSize);
  for (const std::uint64_t offset : offsets_) out = put(offset, width, out);
  out = put(0, 6, out);  // unused, and a version that no reader looks at
  out = put(width, 1, out);
  out = put(referenceSize_, 1, out);
  out = put(offsets_.size(), 8, out);
  out = put(0, 8, out);  // the top object
  end_ = put(tableAt, 8, out);
}

}  // namespace

std::string writeBinary(const Value& value) { return BinaryWriter(value).write(); }

}  // namespace plist
