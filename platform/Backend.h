#pragma once

#include "platform/Object.h"

namespace platform {

/// The way to the pointer in a handle, for the implementations of the projection and nobody else.
struct Backend {
  /// The object's own pointer; null for none.
  static void* reference(const Object& object) noexcept { return object.reference_; }

  /// A handle that takes over one retain of `reference`; none for null.
  template <class Handle>
  static Handle adopt(void* reference) noexcept {
    Handle handle;
    static_cast<Object&>(handle).reference_ = reference;
    return handle;
  }
};

}  // namespace platform
