#include "desktop/Foundation/ValueBody.h"

#include <new>
#include <utility>

#include "desktop/Journal.h"

namespace desktop {

namespace {

bool isNumber(const plist::Value& value) {
  return value.type() == plist::Type::Boolean || value.type() == plist::Type::Integer ||
         value.type() == plist::Type::Real;
}

/// An integer, a boolean as 0 or 1, wide enough for all of them.
__extension__ using Wide = __int128;

std::optional<Wide> integerIn(const plist::Value& value) {
  if (const auto truth = value.boolean()) return *truth ? 1 : 0;
  if (const auto integer = value.integer()) return *integer;
  if (const auto large = value.unsignedInteger()) return *large;
  return std::nullopt;
}

bool sameNumber(const plist::Value& left, const plist::Value& right) {
  const auto leftInteger = integerIn(left);
  const auto rightInteger = integerIn(right);
  if (leftInteger && rightInteger) return *leftInteger == *rightInteger;
  if (leftInteger) return sameNumber(right, left);
  const double real = *left.real();
  return rightInteger ? real == static_cast<double>(*rightInteger) : real == *right.real();
}

/// Memory that waits to be used again.
struct Spare {
  Spare* next;
};
static_assert(sizeof(Spare) <= sizeof(ValueBody));

#ifdef QUILLMERE_SANITIZED
constexpr std::size_t mostSpares = 0;  // What is used after it went is to be found.
#else
constexpr std::size_t mostSpares = 16;
#endif
Spare* firstSpare = nullptr;
std::size_t spares = 0;

}  // namespace

void* ValueBody::operator new(std::size_t size) {
  if (spares == 0) return ::operator new(size);
  --spares;
  return std::exchange(firstSpare, firstSpare->next);
}

void ValueBody::operator delete(void* place) {
  if (spares == mostSpares) return ::operator delete(place);
  ++spares;
  firstSpare = new (place) Spare{firstSpare};
}

std::string_view ValueBody::className() const {
  switch (value.type()) {
    case plist::Type::String:
      return "NSString";
    case plist::Type::Data:
      return "NSData";
    case plist::Type::Date:
      return "NSDate";
    default:
      return "NSNumber";
  }
}

std::string ValueBody::description() const {
  if (const auto text = value.string()) return std::string(*text);
  if (const auto truth = value.boolean()) return *truth ? "1" : "0";
  if (const auto integer = value.integer()) return std::to_string(*integer);
  if (const auto large = value.unsignedInteger()) return std::to_string(*large);
  if (const auto real = value.real()) return Argument(*real).text();
  if (const auto date = value.date()) return "date " + Argument(*date).text();
  if (const auto bytes = value.data())
    return "<NSData of " + std::to_string(bytes->size()) + " bytes>";
  return Body::description();
}

std::string ValueBody::debugDescription() const {
  if (value.string()) return '"' + description() + '"';
  if (const auto truth = value.boolean()) return Argument(*truth).text();
  if (value.real()) return "real " + description();
  return description();
}

bool ValueBody::isEqual(const Body& other) const {
  const auto* that = dynamic_cast<const ValueBody*>(&other);
  if (!that) return false;
  if (isNumber(value) && isNumber(that->value)) return sameNumber(value, that->value);
  return value == that->value;
}

}  // namespace desktop
