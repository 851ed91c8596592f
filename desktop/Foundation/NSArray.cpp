#include "platform/Foundation/NSArray.h"

#include <algorithm>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Foundation/PredicateBody.h"
#include "desktop/Message.h"
#include "platform/Foundation/NSPredicate.h"

namespace desktop {

namespace {

/// A long list is for programs, not for people: a journal line or a report names how long it is.
constexpr std::size_t mostDescribed = 20;

}  // namespace

std::string ArrayBody::description() const {
  std::string text = "(";
  for (std::size_t index = 0; index < std::min(elements.size(), mostDescribed); ++index) {
    if (index > 0) text += ", ";
    text += desktop::debugDescription(elements[index]);
  }
  if (elements.size() > mostDescribed) text += ", … (" + std::to_string(elements.size()) + ")";
  return text + ")";
}

bool ArrayBody::isEqual(const Body& other) const {
  const auto* that = dynamic_cast<const ArrayBody*>(&other);
  return that && std::ranges::equal(elements.objects(), that->elements.objects(),
                                    [](const auto& a, const auto& b) { return a.isEqual(b); });
}

Exception beyondTheEnd(std::size_t index) {
  return rangeException("index " + std::to_string(index) + " beyond the end of the array");
}

Elements elementsIn(const platform::NSArray& array) {
  if (!array) return {};
  if (const auto* body = bodyAs<ArrayBody>(array)) return body->elements;
  throw invalidArgument(debugDescription(array) + " is no array");
}

std::vector<platform::Object> objectsIn(const platform::NSArray& array) {
  return elementsIn(array).objects();
}

}  // namespace desktop

namespace platform {

using desktop::ArrayBody;
using desktop::send;
using Mutable = ArrayBody::Mutable;

bool NSArray::isKind(const Object& object) {
  return send<desktop::Body>(object, "isKindOfClass:", {"NSArray"}, [](desktop::Body& self) {
    return desktop::bodyAs<ArrayBody>(&self) != nullptr;
  });
}

NSArray NSArray::arrayWithObjects(std::initializer_list<Object> objects) {
  std::ranges::for_each(objects, &desktop::requireObject);
  return desktop::make<NSArray, ArrayBody>(desktop::Elements(std::vector(objects)), Mutable::No);
}

std::size_t NSArray::count() const {
  return send<ArrayBody>(*this, "count", {}, [](ArrayBody& self) { return self.elements.size(); });
}

Object NSArray::objectAtIndex(std::size_t index) const {
  return send<ArrayBody>(*this, "objectAtIndex:", {static_cast<double>(index)},
                         [&](ArrayBody& self) {
                           desktop::requireIndex(index, self.elements.size());
                           return self.elements[index];
                         });
}

NSArray NSArray::filteredArrayUsingPredicate(const NSPredicate& predicate) const {
  return send<ArrayBody>(*this, "filteredArrayUsingPredicate:", {predicate}, [&](ArrayBody& self) {
    const auto* asked = desktop::bodyAs<desktop::PredicateBody>(predicate);
    if (!asked) throw desktop::invalidArgument("an array is filtered by a predicate");
    desktop::Elements chosen = self.elements;
    chosen.keepIf([&](const auto& each) { return asked->isTrueOf(each); });
    return desktop::make<NSArray, ArrayBody>(std::move(chosen), Mutable::No);
  });
}

NSMutableArray NSArray::mutableCopy() const {
  return send<ArrayBody>(*this, "mutableCopy", {}, [](ArrayBody& self) {
    return desktop::make<NSMutableArray, ArrayBody>(self.elements, Mutable::Yes);
  });
}

}  // namespace platform
