#include "desktop/Foundation/Values.h"

#include <charconv>
#include <optional>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Foundation/DictionaryBody.h"
#include "desktop/Foundation/ValueBody.h"

namespace desktop {

namespace {

platform::Object boxArray(const plist::Array& array) {
  std::vector<platform::Object> objects;
  objects.reserve(array.size());
  for (const plist::Value& element : array) objects.push_back(box(element));
  return make<platform::NSArray, ArrayBody>(std::move(objects), ArrayBody::Mutable::No);
}

plist::Value unboxArray(const ArrayBody& body) {
  plist::Array array;
  array.reserve(body.objects.size());
  for (const platform::Object& object : body.objects) array.append(unbox(object));
  return plist::Value(std::move(array));
}

/// The number of a number object, a boolean as 0 or 1; none for any other object.
std::optional<double> numberIn(const plist::Value& value) {
  if (const auto truth = value.boolean()) return *truth ? 1 : 0;
  if (const auto real = value.real()) return *real;
  if (const auto integer = value.integer()) return static_cast<double>(*integer);
  if (const auto large = value.unsignedInteger()) return static_cast<double>(*large);
  return std::nullopt;
}

/// The number that a text begins with, after white space; 0 without one.
double leadingNumber(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t\r\n");
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(text[start] == '+' ? start + 1 : start);
  double number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// "YES", "true", "1" and the like: by the first letter, after white space, sign and zeros.
bool meansYes(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t\r\n+-0");
  return start != std::string_view::npos &&
         std::string_view("YyTt123456789").find(text[start]) != std::string_view::npos;
}

}  // namespace

platform::Object box(const plist::Value& value) {
  if (const plist::Array* array = value.array()) return boxArray(*array);
  if (const plist::Dictionary* dictionary = value.dictionary()) {
    return make<platform::Object, DictionaryBody>(*dictionary, DictionaryBody::Mutable::No);
  }
  return make<platform::Object, ValueBody>(value);
}

plist::Value unbox(const platform::Object& object) {
  if (const auto* scalar = bodyAs<ValueBody>(object)) return scalar->value;
  if (const auto* array = bodyAs<ArrayBody>(object)) return unboxArray(*array);
  if (const auto* dictionary = bodyAs<DictionaryBody>(object)) {
    return plist::Value(dictionary->dictionary);
  }
  throw invalidArgument(debugDescription(object) + " cannot stand in a property list");
}

std::string textOf(const platform::Object& object) {
  const auto* body = bodyAs<ValueBody>(object);
  return body ? std::string(body->value.string().value_or("")) : std::string();
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
