#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace desktop {

/// A colour in the text forms of the colour library: hexadecimal digits with alpha in front.
struct HexColor {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  std::uint8_t alpha = 255;

  bool operator==(const HexColor&) const = default;

  /// Reads RGB, ARGB, RRGGBB, AARRGGBB and RRGGBB:0.25 (alpha from 0 to 1), in either case and
  /// with or without a leading "#". None for anything else.
  static std::optional<HexColor> parse(std::string_view text);

  /// Reads "#rrggbb" and "#rrggbbaa", the web's forms. None for anything else.
  static std::optional<HexColor> parseWeb(std::string_view text);

  /// AARRGGBB, upper case, no sign: the form that is stored.
  std::string text() const;

  /// "#rrggbbaa".
  std::string web() const;
};

}  // namespace desktop
