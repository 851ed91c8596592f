#pragma once

#include <cstddef>
#include <variant>
#include <vector>

#include "desktop/Foundation/Values.h"
#include "platform/Object.h"
#include "plist/Value.h"

namespace desktop {

/// The objects of an array, in order. Values of property lists never change, so as long as an array
/// holds nothing else they are kept as such, and each is made an object when it is asked for: a
/// long list of names is copied, loaded and stored as a whole.
class Elements {
 public:
  Elements() = default;
  explicit Elements(plist::Array values) : kept_(std::move(values)) {}
  explicit Elements(std::vector<platform::Object> objects) : kept_(std::move(objects)) {}

  std::size_t size() const {
    return std::visit([](const auto& all) { return all.size(); }, kept_);
  }

  /// The object at `index`, which must be below size().
  platform::Object operator[](std::size_t index) const {
    if (const auto* values = std::get_if<plist::Array>(&kept_)) return box((*values)[index]);
    return std::get<std::vector<platform::Object>>(kept_)[index];
  }

  /// All of them.
  std::vector<platform::Object> objects() const;

  /// The same as values. Raises `NSInvalidArgumentException` for what no property list holds.
  plist::Array values() const;

  /// Puts an object before the one that now stands at `index`; size() puts it last.
  void insert(std::size_t index, const platform::Object& object);

  /// Replaces the object at `index`, which must be below size().
  void replace(std::size_t index, const platform::Object& object);

  /// Takes out every object that is equal to `object`.
  void remove(const platform::Object& object);

  /// Takes out every object that is equal to one of `others`.
  void removeAll(Elements others);

  /// Takes out every object of which `isTrue`, which takes an object and a value alike, is false.
  template <class Predicate>
  void keepIf(Predicate&& isTrue) {
    eraseIf([&](const auto& each) { return !isTrue(each); });
  }

 private:
  template <class Predicate>
  void eraseIf(Predicate&& isDoomed) {
    if (auto* values = std::get_if<plist::Array>(&kept_)) {
      values->eraseIf(isDoomed);
    } else {
      std::erase_if(std::get<std::vector<platform::Object>>(kept_), isDoomed);
    }
  }

  /// The object's value, if all elements are kept as values and it can be one of them; else null,
  /// and from now on all elements are kept as objects.
  const plist::Value* valueAmong(const platform::Object& object);

  std::variant<plist::Array, std::vector<platform::Object>> kept_;
};

}  // namespace desktop
