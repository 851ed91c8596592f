#pragma once

#include <string>

#include "desktop/Body.h"

namespace desktop {

/// An address, as it was written.
class URLBody : public Body {
 public:
  explicit URLBody(std::string address) : text(std::move(address)) {}

  std::string_view className() const override { return "NSURL"; }
  std::string description() const override { return text; }
  bool isEqual(const Body& other) const override {
    const auto* that = dynamic_cast<const URLBody*>(&other);
    return that && that->text == text;
  }

  const std::string text;
};

}  // namespace desktop
