#include "desktop/Colors/HexColor.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace desktop {

namespace {

/// The number that all of `text` spells in hexadecimal digits.
std::optional<std::uint32_t> hexadecimal(std::string_view text) {
  std::uint32_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number, 16);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

/// Each digit doubled: "f80" stands for "ff8800".
std::string doubled(std::string_view digits) {
  std::string text;
  for (const char digit : digits) text.append(2, digit);
  return text;
}

std::optional<std::uint8_t> opacity(std::string_view text) {
  double alpha = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, alpha);
  if (error != std::errc() || stop != end || !(alpha >= 0 && alpha <= 1)) return std::nullopt;
  return static_cast<std::uint8_t>(std::lround(alpha * 255));
}

HexColor fromARGB(std::uint32_t argb) {
  const auto byte = [argb](int shift) { return static_cast<std::uint8_t>(argb >> shift); };
  return {byte(16), byte(8), byte(0), byte(24)};
}

std::string digits(const char* format, const std::array<std::uint8_t, 4>& bytes) {
  std::array<char, sizeof "#rrggbbaa"> text;
  std::snprintf(text.data(), text.size(), format, bytes[0], bytes[1], bytes[2], bytes[3]);
  return text.data();
}

}  // namespace

std::optional<HexColor> HexColor::parse(std::string_view text) {
  if (text.starts_with('#')) text.remove_prefix(1);
  if (text.size() == 3 || text.size() == 4) return parse(doubled(text));
  if (text.size() == 8 && text.find(':') == std::string_view::npos) {
    const auto argb = hexadecimal(text);
    return argb ? std::optional(fromARGB(*argb)) : std::nullopt;
  }
  std::optional<std::uint8_t> alpha = 255;
  if (text.size() > 7 && text[6] == ':') alpha = opacity(text.substr(7));
  if (text.size() != 6 && !(text.size() > 7 && text[6] == ':')) return std::nullopt;
  const auto rgb = hexadecimal(text.substr(0, 6));
  if (!rgb || !alpha) return std::nullopt;
  HexColor color = fromARGB(*rgb);
  color.alpha = *alpha;
  return color;
}

std::optional<HexColor> HexColor::parseWeb(std::string_view text) {
  if (!text.starts_with('#') || (text.size() != 7 && text.size() != 9)) return std::nullopt;
  const std::string alpha = text.size() == 9 ? std::string(text.substr(7)) : "ff";
  const auto argb = hexadecimal(alpha + std::string(text.substr(1, 6)));
  return argb ? std::optional(fromARGB(*argb)) : std::nullopt;
}

std::string HexColor::text() const { return digits("%02X%02X%02X%02X", {alpha, red, green, blue}); }

std::string HexColor::web() const { return digits("#%02x%02x%02x%02x", {red, green, blue, alpha}); }

}  // namespace desktop
