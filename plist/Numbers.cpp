#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

#include "plist/Nodes.h"
#include "plist/Scalars.h"

namespace plist {
namespace {

constexpr std::string_view kWhite = " \t\r\n";

std::string_view trimLeft(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(kWhite), text.size()));
}

std::string_view trim(std::string_view text) {
  return trimLeft(text.substr(0, text.find_last_not_of(kWhite) + 1));
}

/// Takes a sign off the front; whether it was a minus.
bool takeSign(std::string_view& text) {
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  return negative;
}

bool isDigit(char byte) { return byte >= '0' && byte <= '9'; }

bool equalsIgnoringCase(std::string_view text, std::string_view lower) {
  return std::equal(text.begin(), text.end(), lower.begin(), lower.end(),
                    [](char left, char right) { return (left | 0x20) == right; });
}

/// Whether a fraction that no double is near is too large rather than too small: whether its first
/// digit other than 0 stands for 1 or more.
bool isHuge(std::string_view digits) {
  const std::size_t mark = std::min(digits.find_first_of("eE"), digits.size());
  const std::size_t point = std::min(digits.find('.'), mark);
  const std::size_t first = digits.find_first_of("123456789");
  if (first >= mark) return false;
  std::int64_t exponent = 0;
  if (mark < digits.size()) {
    std::string_view text = digits.substr(mark + 1);
    const bool negative = takeSign(text);
    if (std::from_chars(text.data(), text.data() + text.size(), exponent).ec != std::errc{}) {
      return !negative;  // no digits in the file could outweigh such an exponent
    }
    if (negative) exponent = -exponent;
  }
  return exponent + static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first) > 0;
}

std::optional<double> parseMagnitude(std::string_view text) {
  if (equalsIgnoringCase(text, "inf") || equalsIgnoringCase(text, "infinity")) {
    return std::numeric_limits<double>::infinity();
  }
  if (text.empty() || (!isDigit(text[0]) && text[0] != '.')) return {};
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  if (rest != end || error == std::errc::invalid_argument) return {};
  if (error == std::errc{}) return number;
  return isHuge(text) ? std::numeric_limits<double>::infinity() : 0.0;
}

}  // namespace

std::optional<Value> parseInteger(std::string_view text) {
  text = trim(text);
  const bool negative = takeSign(text);
  text = trimLeft(text);
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  if (hexadecimal) text.remove_prefix(2);
  std::uint64_t magnitude = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, magnitude, hexadecimal ? 16 : 10);
  if (error != std::errc{} || rest != end) return {};
  if (!negative) return Value::integer(magnitude);
  if (magnitude > std::uint64_t{1} << 63) return {};
  return Value::integer(static_cast<std::int64_t>(0 - magnitude));
}

std::optional<Value> parseReal(std::string_view text) {
  text = trim(text);
  if (equalsIgnoringCase(text, "nan")) return Value::real(std::numeric_limits<double>::quiet_NaN());
  const bool negative = takeSign(text);
  const std::optional<double> magnitude = parseMagnitude(text);
  if (!magnitude) return {};
  return Value::real(negative ? -*magnitude : *magnitude);
}

void appendInteger(const Value& value, std::string& out) {
  std::array<char, 24> digits;
  char* const end = digits.data() + digits.size();
  const auto number = value.integer();
  const auto done = number ? std::to_chars(digits.data(), end, *number)
                           : std::to_chars(digits.data(), end, *value.unsignedInteger());
  out.append(digits.data(), done.ptr);
}

bool appendReal(const Value& value, std::string& out) {
  // A NaN of single width is judged before it widens, which would make any of them quiet.
  const double number = *value.real();
  if (std::isnan(number)) {
    const bool plain = value == Value::real(std::numeric_limits<double>::quiet_NaN()) ||
                       value == Value::real(std::numeric_limits<float>::quiet_NaN());
    if (plain) out += "nan";
    return plain;
  }
  if (std::isinf(number)) {
    out += number > 0 ? "+infinity" : "-infinity";
  } else if (number == 0) {
    out += std::signbit(number) ? "-0.0" : "0.0";
  } else {
    std::array<char, 32> digits;
    const auto done = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    out.append(digits.data(), done.ptr);
  }
  return true;
}

}  // namespace plist
