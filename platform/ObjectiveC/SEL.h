#pragma once

#include <string_view>

namespace platform {

/// The name of a message, such as "setPreferenceValue:specifier:". Empty is no message at all.
struct SEL {
  constexpr SEL() = default;
  constexpr SEL(const char* selector) : name(selector) {}

  constexpr explicit operator bool() const { return !name.empty(); }
  constexpr bool operator==(const SEL&) const = default;

  std::string_view name;
};

}  // namespace platform
