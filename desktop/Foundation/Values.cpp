#include "desktop/Foundation/Values.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Foundation/DictionaryBody.h"
#include "desktop/Foundation/ValueBody.h"

namespace desktop {

namespace {

/// The number of a number object, a boolean as 0 or 1; none for any other object.
std::optional<double> numberIn(const plist::Value& value) {
  if (const auto truth = value.boolean()) return *truth ? 1 : 0;
  if (const auto real = value.real()) return *real;
  if (const auto integer = value.integer()) return static_cast<double>(*integer);
  if (const auto large = value.unsignedInteger()) return static_cast<double>(*large);
  return std::nullopt;
}

constexpr std::string_view spaces = " \t\r\n";
constexpr std::string_view decimalDigits = "0123456789";

std::string_view withoutLeading(std::string_view text, std::string_view letters) {
  return text.substr(std::min(text.find_first_not_of(letters), text.size()));
}

/// Takes a sign off the front; whether it was a minus.
bool takeSign(std::string_view& text) {
  const bool minus = text.starts_with('-');
  if (minus || text.starts_with('+')) text.remove_prefix(1);
  return minus;
}

/// The decimal number that a text begins with, after white space; 0 without one.
double leadingNumber(std::string_view text) {
  text = withoutLeading(text, spaces);
  const bool minus = takeSign(text);
  // The C++ library knows names of numbers and a sign of its own here; the platform does not.
  if (withoutLeading(text, ".").find_first_of(decimalDigits) != 0) return 0;
  double number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return minus ? -number : number;
}

/// "YES", "true", "1" and the like: by the first letter, after white space, a sign and zeros.
bool meansYes(std::string_view text) {
  text = withoutLeading(text, spaces);
  takeSign(text);
  text = withoutLeading(text, "0");
  return !text.empty() && std::string_view("YyTt123456789").find(text[0]) != std::string_view::npos;
}

}  // namespace

platform::Object box(const plist::Value& value) {
  if (const plist::Array* array = value.array()) {
    return make<platform::Object, ArrayBody>(Elements(*array), ArrayBody::Mutable::No);
  }
  if (const plist::Dictionary* dictionary = value.dictionary()) {
    return make<platform::Object, DictionaryBody>(PropertyListFile{Entries(*dictionary)},
                                                  DictionaryBody::Mutable::No);
  }
  return make<platform::Object, ValueBody>(value);
}

plist::Value unbox(const platform::Object& object) {
  if (const auto* scalar = bodyAs<ValueBody>(object)) return scalar->value;
  if (const auto* array = bodyAs<ArrayBody>(object)) return plist::Value(array->elements.values());
  if (const auto* dictionary = bodyAs<DictionaryBody>(object)) {
    return plist::Value(dictionary->file.entries.all());
  }
  throw invalidArgument(debugDescription(object) + " cannot stand in a property list");
}

std::optional<std::string_view> textIn(const platform::Object& object) {
  const auto* body = bodyAs<ValueBody>(object);
  return body ? body->value.string() : std::nullopt;
}

std::string textOf(const platform::Object& object) {
  return std::string(textIn(object).value_or(""));
}

std::string textAt(const plist::Dictionary& dictionary, std::string_view key,
                   std::string_view absent) {
  const plist::Value* value = dictionary.find(key);
  return std::string(value ? value->string().value_or(absent) : absent);
}

double doubleValue(const platform::Object& object) {
  const auto* body = bodyAs<ValueBody>(object);
  if (!body) return 0;
  if (const auto text = body->value.string()) return leadingNumber(*text);
  return numberIn(body->value).value_or(0);
}

bool boolValue(const platform::Object& object) {
  const auto* body = bodyAs<ValueBody>(object);
  if (!body) return false;
  if (const auto text = body->value.string()) return meansYes(*text);
  return numberIn(body->value).value_or(0) != 0;
}

}  // namespace desktop
