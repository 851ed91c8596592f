#include "plist/ReadBinary.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "plist/BinaryFile.h"
#include "plist/BinaryScalars.h"
#include "plist/Nodes.h"
#include "plist/Text.h"

namespace plist {
namespace {

using binary::File;
using binary::Marker;
using binary::Object;
using Kind = Internals::Kind;

/// ASCII text up to this length is cheaper to look at again than to remember.
constexpr std::size_t kShortText = 256;
/// As deep as most property lists are.
constexpr std::size_t kUsualDepth = 4;
/// What one allocation holds of the text that had to be converted.
constexpr std::size_t kConvertedBlock = std::size_t{64} * 1024;

/// An object that several places may share: read once, counted at each of them.
struct Known {
  Value value;
  std::uint64_t text = 0;    ///< Bytes of text and data in it.
  std::uint32_t nodes = 0;   ///< Below it.
  std::uint32_t height = 0;  ///< Containers inside one another, itself counted.
};

/// A container whose elements are being read.
struct Open {
  Object object;
  std::uint64_t number;
  std::uint64_t next = 0;         ///< Element to read.
  std::uint32_t nodesBefore = 0;  ///< Counted before its elements were.
  std::uint64_t textBefore = 0;
  std::uint32_t height = 1;
  Value value;
  DictionaryNode* entries;  ///< Of a dictionary; none for an array.
};

class BinaryReader {
 public:
  BinaryReader(std::string bytes, const Limits& limits)
      : source_(std::move(bytes)), file_(source_.bytes()), limits_(limits) {
    // Each object in use counts at least once.
    if (file_.objectCount() > limits.nodes) throw Unreadable("too many objects");
    states_.resize(file_.objectCount(), kUnread);
    open_.reserve(kUsualDepth);
  }

  Value readTree() {
    count(1);
    const Object top = file_.object(file_.topObject());
    if (!top.isContainer()) return readLeaf(top, file_.topObject());
    open(top, file_.topObject());
    for (;;) {
      if (!readElements()) continue;
      Value whole = close();
      if (open_.empty()) return whole;
      place(open_.back(), std::move(whole));
    }
  }

 private:
  // What is known of an object; kKnown and above is a position among the known ones.
  static constexpr std::uint32_t kUnread = 0;
  static constexpr std::uint32_t kCounted = 1;  // looked at, and cheaper to look at again
  static constexpr std::uint32_t kOpen = 2;
  static constexpr std::uint32_t kKnown = 3;

  void count(std::uint64_t nodes) {
    if (nodes > limits_.nodes - nodes_) throw Unreadable("too many values");
    nodes_ += static_cast<std::uint32_t>(nodes);
  }

  /// What is shared is small in the file and in memory, but not for those who look at each value.
  void countText(std::uint64_t bytes) {
    if (bytes > limits_.text - text_) throw Unreadable("too much text");
    text_ += bytes;
  }

  /// Objects that lie over one another could otherwise add up to far more than the file.
  void countBytes(const Object& object, std::uint64_t number) {
    if (states_[number] == kCounted) return;
    states_[number] = kCounted;
    bytes_ += object.bytes.size();
    if (bytes_ > source_.bytes().size()) throw Unreadable("objects overlap", object.offset);
  }

  void checkDepth(std::size_t more, std::size_t offset) const {
    if (open_.size() + more > limits_.depth) throw Unreadable("nested too deeply", offset);
  }

  Value readLeaf(const Object& object, std::uint64_t number);
  const Value& readShared(std::uint64_t number);
  Value readKey(std::uint64_t number);
  Value readText(const Object& object, std::uint64_t number);
  Value convert(std::string_view units);
  void open(const Object& object, std::uint64_t number);
  bool readElements();
  void place(Open& parent, Value&& value);
  Value close();

  void remember(std::uint64_t number, Known known) {
    known_.push_back(std::move(known));
    states_[number] = static_cast<std::uint32_t>(known_.size() - 1) + kKnown;
  }

  Value slice(Kind kind, const Object& object) {
    if (object.bytes.size() > Internals::kMaxSize) throw Unreadable("too long", object.offset);
    const auto start = static_cast<std::size_t>(object.bytes.data() - source_.bytes().data());
    return Internals::slice(kind, source_.take(), static_cast<std::uint32_t>(start),
                            static_cast<std::uint32_t>(object.bytes.size()));
  }

  BufferLoan source_;
  std::optional<BufferLoan> converted_;
  File file_;
  const Limits& limits_;
  std::vector<std::uint32_t> states_;  // by object number
  std::vector<Known> known_;
  std::vector<Open> open_;
  std::uint32_t nodes_ = 0;
  std::uint64_t text_ = 0;
  std::size_t bytes_ = 0;  // of the objects so far, but for numbers
};

Value BinaryReader::readLeaf(const Object& object, std::uint64_t number) {
  switch (object.marker) {
    case Marker::Ascii:
    case Marker::Utf16:
      return readText(object, number);
    case Marker::Data:
      countBytes(object, number);
      countText(object.bytes.size());
      return slice(Kind::Data, object);
    default:
      return binary::readScalar(object);
  }
}

const Value& BinaryReader::readShared(std::uint64_t number) {
  if (states_[number] == kOpen) {
    throw Unreadable("container inside itself", file_.object(number).offset);
  }
  const Known& known = known_[states_[number] - kKnown];
  count(known.nodes);
  countText(known.text);
  checkDepth(known.height, file_.object(number).offset);
  if (!open_.empty()) open_.back().height = std::max(open_.back().height, known.height + 1);
  return known.value;
}

Value BinaryReader::readText(const Object& object, std::uint64_t number) {
  countBytes(object, number);
  const bool ascii = object.marker == Marker::Ascii;
  if (ascii && !isAscii(object.bytes)) throw Unreadable("text beyond ASCII", object.offset);
  Value text = ascii ? slice(Kind::String, object) : convert(object.bytes);
  const std::size_t size = Internals::slice(text).size();
  countText(size);
  if (!ascii || size > kShortText) remember(number, {text, size});
  return text;
}

Value BinaryReader::convert(std::string_view units) {
  const std::size_t most = units.size() / 2 * 3;
  if (most > Internals::kMaxSize) throw Unreadable("text too long");
  if (!converted_ || converted_->bytes().capacity() - converted_->bytes().size() < most) {
    std::string block;
    block.reserve(std::max(most, std::min(kConvertedBlock, source_.bytes().size())));
    converted_.emplace(std::move(block));
  }
  std::string& text = converted_->bytes();
  const std::size_t start = text.size();
  appendUtf16(units, text);
  return Internals::slice(Kind::String, converted_->take(), static_cast<std::uint32_t>(start),
                          static_cast<std::uint32_t>(text.size() - start));
}

Value BinaryReader::readKey(std::uint64_t number) {
  if (states_[number] >= kKnown) {
    if (const Value& known = known_[states_[number] - kKnown].value; known.string()) {
      return readShared(number);
    }
  } else if (states_[number] < kOpen) {
    const Object object = file_.object(number);
    if (object.isText()) {
      return readText(object, number);
    }
  }
  throw Unreadable("key that is not a string", file_.object(number).offset);
}

void BinaryReader::open(const Object& object, std::uint64_t number) {
  checkDepth(1, object.offset);
  countBytes(object, number);
  const bool dictionary = object.marker == Marker::Dictionary;
  const std::uint32_t before = nodes_;
  count(dictionary ? 2 * object.count : object.count);  // before any memory is set aside for them
  Value value = dictionary ? Value(Dictionary()) : Value(Array());
  DictionaryNode* entries = nullptr;
  if (dictionary) {
    entries = &Internals::own(*value.dictionary());
    entries->entries.reserve(object.count);
  } else {
    value.array()->reserve(object.count);
  }
  open_.push_back({object, number, 0, before, text_, 1, std::move(value), entries});
  states_[number] = kOpen;
}

/// Reads on until the innermost container is complete (true) or an element opens another (false).
bool BinaryReader::readElements() {
  Open& parent = open_.back();
  const bool dictionary = parent.object.marker == Marker::Dictionary;
  while (parent.next < parent.object.count) {
    const std::uint64_t index = dictionary ? parent.object.count + parent.next : parent.next;
    const std::uint64_t number = file_.reference(parent.object, index);
    if (states_[number] >= kOpen) {
      place(parent, Value(readShared(number)));
      continue;
    }
    const Object object = file_.object(number);
    if (object.isContainer()) {
      open(object, number);
      return false;
    }
    place(parent, readLeaf(object, number));
  }
  return true;
}

void BinaryReader::place(Open& parent, Value&& value) {
  const std::uint64_t index = parent.next++;
  if (parent.entries == nullptr) {
    parent.value.array()->append(std::move(value));
  } else {
    Internals::append(parent.entries->entries, readKey(file_.reference(parent.object, index)),
                      std::move(value));
  }
}

Value BinaryReader::close() {
  Open done = std::move(open_.back());
  if (done.entries != nullptr) done.entries->dropRepeated();
  open_.pop_back();
  if (open_.empty()) return std::move(done.value);  // the root, which nothing refers to
  open_.back().height = std::max(open_.back().height, done.height + 1);
  remember(done.number,
           {done.value, text_ - done.textBefore, nodes_ - done.nodesBefore, done.height});
  return std::move(done.value);
}

}  // namespace

Value readBinary(std::string bytes, const Limits& limits) {
  return BinaryReader(std::move(bytes), limits).readTree();
}

}  // namespace plist
