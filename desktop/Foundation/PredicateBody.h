#pragma once

#include <string>

#include "desktop/Body.h"
#include "plist/Value.h"

namespace desktop {

/// Whether a text ends in a given one, compared exactly.
class PredicateBody final : public Body {
 public:
  explicit PredicateBody(std::string text) : ending(std::move(text)) {}

  std::string_view className() const override { return "NSPredicate"; }
  std::string description() const override { return "SELF ENDSWITH \"" + ending + '"'; }

  /// Raises `NSInvalidArgumentException` for what is no string, as the platform's comparison does.
  bool isTrueOf(const platform::Object& object) const;
  bool isTrueOf(const plist::Value& value) const;

  const std::string ending;
};

}  // namespace desktop
