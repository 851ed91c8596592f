#pragma once

#include <cstddef>

#include "desktop/Body.h"
#include "plist/Value.h"

namespace desktop {

/// A string, number, date or data: an object that never changes.
class ValueBody final : public Body {
 public:
  explicit ValueBody(plist::Value contents) : value(std::move(contents)) {}

  std::string_view className() const override;
  std::string description() const override;
  std::string debugDescription() const override;
  /// Numbers, booleans among them, compare by value; all else exactly.
  bool isEqual(const Body& other) const override;

  /// Whoever goes through a long list makes and lets go of one of these for each element: the
  /// memory that some leave is kept for the next.
  static void* operator new(std::size_t size);
  static void operator delete(void* place);

  const plist::Value value;
};

}  // namespace desktop
