#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "plist/BinaryFile.h"
#include "plist/Document.h"
#include "plist/Nodes.h"
#include "plist/PutBinary.h"
#include "plist/SharedPlaces.h"

namespace plist {
namespace {

using binary::put;
using binary::widthFor;

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
    size += binary::objectSize(value);
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
      object = writeReferences(*value, binary::putObject(*value, object));
      entry = put(offset, offsetSize_, entry);
    }
    writeTrailer(entry);
    return std::move(bytes_);
  }

 private:
  char* writeReferences(const Value& value, char* out);
  void writeTrailer(char* out);

  Numbering numbering_;
  std::vector<std::uint32_t>::const_iterator nextReference_;
  std::uint8_t referenceSize_;
  std::size_t tableAt_;
  std::uint8_t offsetSize_;
  std::string bytes_;
};

char* BinaryWriter::writeReferences(const Value& value, char* out) {
  std::size_t count = 0;
  if (const Array* const array = value.array()) count = array->size();
  if (const Dictionary* const dictionary = value.dictionary()) count = 2 * dictionary->size();
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
