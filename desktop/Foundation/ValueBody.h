#pragma once

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

  const plist::Value value;
};

}  // namespace desktop
