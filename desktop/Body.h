#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <utility>

#include "desktop/Exception.h"
#include "platform/Backend.h"
#include "platform/Object.h"

namespace desktop {

/// What a handle refers to: the desktop's counterpart of an Objective-C object. Counted without
/// atomics, since everything runs on one thread.
class Body {
 public:
  Body() = default;
  Body(const Body&) = delete;
  Body& operator=(const Body&) = delete;
  virtual ~Body() = default;

  void retain() { ++retains_; }
  void release() {
    if (--retains_ == 0) delete this;
  }

  virtual std::string_view className() const = 0;

  /// What `%@` shows.
  virtual std::string description() const;

  /// How the journal writes it: unambiguous about the type.
  virtual std::string debugDescription() const { return description(); }

  virtual bool isEqual(const Body& other) const { return this == &other; }

 private:
  std::uint32_t retains_ = 1;
};

/// The body behind a handle; null for none.
inline Body* bodyOf(const platform::Object& object) {
  return static_cast<Body*>(platform::Backend::reference(object));
}

/// The body as one of its class; null for null and for bodies of other classes. Quick for a class
/// that is final, which needs no search for what it derives from.
template <class T>
T* bodyAs(Body* body) {
  if constexpr (std::is_final_v<T>) {
    return body && typeid(*body) == typeid(T) ? static_cast<T*>(body) : nullptr;
  } else {
    return dynamic_cast<T*>(body);
  }
}

/// The same of what is behind a handle.
template <class T>
T* bodyAs(const platform::Object& object) {
  return bodyAs<T>(bodyOf(object));
}

/// A handle to a new body.
template <class Handle, class T, class... Arguments>
Handle make(Arguments&&... arguments) {
  return platform::Backend::adopt<Handle>(
      static_cast<Body*>(new T(std::forward<Arguments>(arguments)...)));
}

/// "(null)" for none.
std::string description(const platform::Object& object);
std::string debugDescription(const platform::Object& object);

}  // namespace desktop
