#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "plist/Value.h"

/// The texts that stand for numbers, dates and data in XML. No locale changes them.
namespace plist {

/// `[-+]digits` or `[-+]0xdigits` from -2^63 to 2^64 - 1; white space may stand around it and after
/// the sign. None for anything else.
std::optional<Value> parseInteger(std::string_view text);

/// A decimal fraction with or without exponent, or, in any case of letters, nan and signed or
/// unsigned inf and infinity; white space may stand around it. As with strtod, what is too large
/// is an infinity and what is too small a zero, with their signs. None for anything else.
std::optional<Value> parseReal(std::string_view text);

/// `[-]Y-MM-DDThh:mm:ssZ` in the Gregorian calendar, also before its time (there is a year 0), in
/// any year that a double counts the seconds of exactly. None for anything else.
std::optional<Value> parseDate(std::string_view text);

/// Decodes base64 (RFC 4648, section 4) in place: white space anywhere, padding as needed, unused
/// bits zero. False for anything else; `text` is then no use.
bool decodeBase64(std::string& text, std::size_t from);

void appendInteger(const Value& value, std::string& out);

/// The shortest decimal fraction that reads back as the same double.
/// False, with nothing appended, for a NaN other than the plain quiet one.
bool appendReal(const Value& value, std::string& out);

/// False, with nothing appended, for a date that no text gives back exactly.
bool appendDate(double seconds, std::string& out);

/// Base64 in lines of `width` characters, a multiple of 4, each after `indent` tabs.
void appendBase64(std::string_view bytes, std::size_t indent, std::size_t width, std::string& out);

}  // namespace plist
