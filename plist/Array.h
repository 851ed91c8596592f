#pragma once

#include <cstddef>
#include <functional>

// Whoever looks into an array includes plist/Value.h: the elements are values.
namespace plist {

class Value;
struct ArrayNode;

/// Values in order. A copy shares the elements until one of the two changes, so it costs nothing.
/// Each operation that may allocate throws std::bad_alloc and then leaves the array as it was.
class Array {
 public:
  Array() noexcept = default;
  Array(const Array& other) noexcept;
  Array(Array&& other) noexcept : node_(other.node_) { other.node_ = nullptr; }
  Array& operator=(Array other) noexcept;
  ~Array();

  [[nodiscard]] std::size_t size() const noexcept;
  [[nodiscard]] bool empty() const noexcept { return size() == 0; }

  /// The element at `index`, which must be below size().
  const Value& operator[](std::size_t index) const noexcept;
  [[nodiscard]] const Value* begin() const noexcept;
  [[nodiscard]] const Value* end() const noexcept;

  void reserve(std::size_t count);
  void append(Value value);

  /// Replaces the element at `index`, which must be below size().
  void set(std::size_t index, Value value);

  /// Puts `value` before the element at `index`; size() puts it last.
  void insert(std::size_t index, Value value);

  /// Takes out the element at `index`, which must be below size().
  void erase(std::size_t index);

  /// Takes out every element of which `isDoomed` is true, the others keeping their order. It may be
  /// asked of an element more than once.
  void eraseIf(const std::function<bool(const Value&)>& isDoomed);

  /// Exactly equal elements in the same order.
  friend bool operator==(const Array& left, const Array& right);

 private:
  friend struct Internals;
  ArrayNode& own();

  ArrayNode* node_ = nullptr;  // none while empty
};

}  // namespace plist
