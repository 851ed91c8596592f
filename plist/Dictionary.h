#pragma once

#include <cstddef>
#include <string_view>

// Whoever looks into a dictionary includes plist/Value.h: the entries hold values.
namespace plist {

class Value;
struct DictionaryNode;

/// Values by key, in the order in which the keys came. Keys are text (see plist/Text.h), the empty
/// one included. A copy shares the entries until one of the two changes, so it costs nothing.
/// Each operation that may allocate throws std::bad_alloc and then leaves the dictionary as it was.
class Dictionary {
 public:
  class Entry;

  Dictionary() noexcept = default;
  Dictionary(const Dictionary& other) noexcept;
  Dictionary(Dictionary&& other) noexcept : node_(other.node_) { other.node_ = nullptr; }
  Dictionary& operator=(Dictionary other) noexcept;
  ~Dictionary();

  [[nodiscard]] std::size_t size() const noexcept;
  [[nodiscard]] bool empty() const noexcept { return size() == 0; }
  [[nodiscard]] const Entry* begin() const noexcept;
  [[nodiscard]] const Entry* end() const noexcept;

  /// The value of `key`, none if there is no such key. Valid until the dictionary next changes.
  [[nodiscard]] const Value* find(std::string_view key) const noexcept;
  [[nodiscard]] bool contains(std::string_view key) const noexcept { return find(key) != nullptr; }

  void reserve(std::size_t count);

  /// Gives `key` the value: in place if the key is there, else as the last entry.
  /// Throws std::invalid_argument if `key` is not text.
  void set(std::string_view key, Value value);

  /// Takes the entry out, the others keeping their order; false if there is no such key.
  /// Takes time linear in size().
  bool erase(std::string_view key);

  /// The same keys with exactly equal values, in any order.
  friend bool operator==(const Dictionary& left, const Dictionary& right);

 private:
  friend struct Internals;
  DictionaryNode& own();

  DictionaryNode* node_ = nullptr;  // none while empty
};

}  // namespace plist
