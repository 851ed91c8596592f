#pragma once

#include <string>

#include "desktop/Body.h"

namespace desktop {

/// A class of the stand-in's run time.
class ClassBody : public Body {
 public:
  explicit ClassBody(std::string givenName) : name(std::move(givenName)) {}

  std::string_view className() const override { return "Class"; }
  std::string description() const override { return name; }
  bool isEqual(const Body& other) const override {
    const auto* that = dynamic_cast<const ClassBody*>(&other);
    return that && that->name == name;
  }

  const std::string name;
};

/// The name that a class goes by; empty for none and for objects that are no class.
std::string nameOfClass(const platform::Object& object);

}  // namespace desktop
