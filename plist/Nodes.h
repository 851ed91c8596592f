#pragma once

#include <atomic>
#include <cstdint>
#include <string_view>
#include <vector>

#include "plist/Buffer.h"
#include "plist/KeyIndex.h"
#include "plist/Value.h"

namespace plist {

/// What arrays and dictionaries share between copies.
struct Node {
  explicit Node(bool dictionary) noexcept : isDictionary(dictionary) {}
  Node(const Node&) = delete;
  Node& operator=(const Node&) = delete;

  void retain() noexcept { references.fetch_add(1, std::memory_order_relaxed); }
  /// Whether that was the last reference.
  bool drop() noexcept { return references.fetch_sub(1, std::memory_order_acq_rel) == 1; }
  /// Frees the tree below as well, in a loop: however deep it is, the stack stays as it is.
  void release() noexcept;
  [[nodiscard]] bool isShared() const noexcept {
    return references.load(std::memory_order_acquire) != 1;
  }

  std::atomic<std::uint32_t> references{1};
  const bool isDictionary;
  Node* nextDoomed = nullptr;

 protected:
  ~Node() = default;
};

struct ArrayNode : Node {
  ArrayNode() noexcept : Node(false) {}

  std::vector<Value> items;
};

struct DictionaryNode : Node {
  DictionaryNode() noexcept : Node(true) {}

  [[nodiscard]] const Dictionary::Entry* find(std::string_view key) const noexcept;
  void reserve(std::size_t count);
  /// Adds an entry unless the key is there: then it takes neither and answers that key's value.
  /// `key` is a string.
  Value* add(Value&& key, Value&& value);
  void erase(std::size_t position) noexcept;
  /// To be called once many entries were appended to the list as they came: of those with one key
  /// the first stays.
  void dropRepeated();

  std::vector<Dictionary::Entry> entries;

 private:
  // Fewer entries are found faster by looking at each.
  static constexpr std::size_t kUnindexed = 8;
  [[nodiscard]] std::uint32_t slot(std::string_view key) const noexcept;
  void fill(KeyIndex& index) const noexcept;
  void reindex(std::size_t count);

  KeyIndex index_;
};

/// The codec's way into representations that callers do not see.
struct Internals {
  using Kind = Value::Kind;
  static constexpr std::uint32_t kMaxSize = Value::kMaxSize;

  static Kind kind(const Value& value) noexcept { return value.kind(); }
  static std::uint64_t bits(const Value& value) noexcept { return value.payload_.bits; }
  static Buffer* buffer(const Value& value) noexcept { return value.payload_.buffer; }
  static std::string_view slice(const Value& value) noexcept {
    return {value.payload_.buffer->bytes.data() + value.offset_, value.tag_ & kMaxSize};
  }

  /// Text or data of `size` bytes, at most kMaxSize; takes over the reference to the buffer.
  static Value slice(Kind kind, Buffer* buffer, std::uint32_t offset, std::uint32_t size) noexcept {
    Value value(kind);
    value.payload_.buffer = buffer;
    value.offset_ = offset;
    value.tag_ |= size;
    return value;
  }

  /// A slice of text or data; it lies inside, and shares the bytes.
  static Value part(const Value& whole, std::uint32_t offset, std::uint32_t size) noexcept {
    Value value(whole);
    value.offset_ += offset;
    value.tag_ = (value.tag_ & ~kMaxSize) | size;
    return value;
  }

  static void append(std::vector<Dictionary::Entry>& entries, Value&& key, Value&& value) {
    entries.push_back({std::move(key), std::move(value)});
  }
  static Value& key(Dictionary::Entry& entry) noexcept { return entry.key_; }
  static const Value& key(const Dictionary::Entry& entry) noexcept { return entry.key_; }
  static Value& value(Dictionary::Entry& entry) noexcept { return entry.value_; }
  static DictionaryNode& own(Dictionary& dictionary) { return dictionary.own(); }
  static Value owning(Kind kind, std::string bytes) {
    return Value::owning(kind, std::move(bytes));
  }
  static ArrayNode& own(Array& array) { return array.own(); }
  static Node* node(const Value& container) noexcept {
    return container.kind() == Kind::Array ? static_cast<Node*>(container.payload_.array.node_)
                                           : container.payload_.dictionary.node_;
  }

  /// Gives up a value's reference, to `buffers` or as the answer: a node that nobody holds now.
  static Node* surrender(Value& value, BufferReturn& buffers) noexcept {
    if (!value.shares()) return nullptr;
    Node* node = nullptr;
    if (value.kind() < Kind::Array) {
      buffers.add(value.payload_.buffer);
    } else {
      node = Internals::node(value);
    }
    value.forget();
    return node != nullptr && node->drop() ? node : nullptr;
  }
};

}  // namespace plist
