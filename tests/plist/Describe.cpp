#include "tests/plist/Describe.h"

#include <bit>
#include <cstdint>
#include <string_view>

#include "plist/Text.h"

namespace samples {
namespace {

using plist::Array;
using plist::Dictionary;
using plist::Type;
using plist::Value;

std::string digits(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text;
  for (const char byte : bytes) {
    text += kDigits[static_cast<std::uint8_t>(byte) >> 4];
    text += kDigits[static_cast<std::uint8_t>(byte) & 0xF];
  }
  return text;
}

std::string digits(double number) {
  std::string bytes;
  for (int shift = 56; shift >= 0; shift -= 8) {
    bytes += static_cast<char>(std::bit_cast<std::uint64_t>(number) >> shift & 0xFF);
  }
  return digits(bytes);
}

std::string units(std::string_view text) {
  std::string bytes(2 * plist::utf16Length(text), '\0');
  plist::toUtf16(text, bytes.data());
  return digits(bytes);
}

std::string typed(const char* type, const std::string& content) {
  return std::string("[\"") + type + "\", " + content + "]";
}

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

std::string describeArray(const Array& array) {
  std::string all;
  for (const Value& item : array) all += (all.empty() ? "" : ", ") + describe(item);
  return typed("array", "[" + all + "]");
}

std::string describeDictionary(const Dictionary& dictionary) {
  std::string all;
  for (const Dictionary::Entry& entry : dictionary) {
    all += (all.empty() ? "[" : ", [") + quoted(units(entry.key())) + ", " +
           describe(entry.value()) + "]";
  }
  return typed("dict", "[" + all + "]");
}

}  // namespace

std::string describe(const Value& value) {
  switch (value.type()) {
    case Type::Boolean:
      return typed("bool", *value.boolean() ? "true" : "false");
    case Type::Integer:
      return typed("int", value.integer() ? std::to_string(*value.integer())
                                          : std::to_string(*value.unsignedInteger()));
    case Type::Real:
      return typed("real", quoted(digits(*value.real())));
    case Type::Date:
      return typed("date", quoted(digits(*value.date())));
    case Type::Uid:
      return typed("uid", std::to_string(*value.uid()));
    case Type::String:
      return typed("string", quoted(units(*value.string())));
    case Type::Data:
      return typed("data", quoted(digits(*value.data())));
    case Type::Array:
      return describeArray(*value.array());
    case Type::Dictionary:
      return describeDictionary(*value.dictionary());
  }
  return {};
}

Value widened(const Value& value) {
  if (value.type() == Type::Real) return Value::real(*value.real());
  if (const Array* const array = value.array()) {
    Array wide;
    for (const Value& item : *array) wide.append(widened(item));
    return Value(wide);
  }
  if (const Dictionary* const dictionary = value.dictionary()) {
    Dictionary wide;
    for (const Dictionary::Entry& entry : *dictionary)
      wide.set(entry.key(), widened(entry.value()));
    return Value(wide);
  }
  return value;
}

}  // namespace samples
