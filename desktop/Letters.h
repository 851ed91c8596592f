#pragma once

namespace desktop {

/// The small letter of a capital one of ASCII, and any other byte as it is, whatever the locale.
constexpr char lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

}  // namespace desktop
