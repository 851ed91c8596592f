#pragma once

#include <utility>

/// The projection of the phone's frameworks: what the bundle is written against.
/// Headers only; `desktop/` and `device/` each implement all of it, and one of the two is linked.
namespace platform {

/// A reference to one of the platform's objects, held as a message's receiver is: a copy retains
/// the same object, and a reference may be to *none*. Sending to none does nothing and answers
/// nothing (false, 0, empty, none), so callers need not ask first.
class Object {
 public:
  /// None.
  Object() noexcept = default;
  Object(const Object& other) noexcept;
  Object(Object&& other) noexcept : reference_(std::exchange(other.reference_, nullptr)) {}
  Object& operator=(Object other) noexcept {
    std::swap(reference_, other.reference_);
    return *this;
  }
  ~Object();

  /// Whether there is an object.
  explicit operator bool() const noexcept { return reference_ != nullptr; }

  /// Whether both are the very same object (or both none). For equal content ask `isEqual`.
  bool operator==(const Object& other) const noexcept { return reference_ == other.reference_; }

  /// `isEqual:`: whether the two have equal content; numbers compare by value. False for none.
  bool isEqual(const Object& other) const;

  /// The same object seen as another class, unchecked like an Objective-C cast.
  template <class T>
  T as() const {
    T seen;
    static_cast<Object&>(seen) = *this;
    return seen;
  }

 private:
  friend struct Backend;
  void* reference_ = nullptr;
};

}  // namespace platform
