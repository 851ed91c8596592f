#pragma once

#include <string>

#include "desktop/Body.h"

namespace desktop {

/// Why something failed: a code, whose meaning is its maker's, and a text for people.
class ErrorBody : public Body {
 public:
  ErrorBody(int number, std::string reason) : code(number), text(std::move(reason)) {}

  std::string_view className() const override { return "NSError"; }
  std::string description() const override { return text + " (" + std::to_string(code) + ")"; }

  const int code;
  const std::string text;
};

}  // namespace desktop
