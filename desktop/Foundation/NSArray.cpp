#include "platform/Foundation/NSArray.h"

#include <algorithm>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Message.h"

namespace desktop {

std::string ArrayBody::description() const {
  std::string text = "(";
  for (const platform::Object& object : objects) {
    if (text.size() > 1) text += ", ";
    text += desktop::debugDescription(object);
  }
  return text + ")";
}

bool ArrayBody::isEqual(const Body& other) const {
  const auto* that = dynamic_cast<const ArrayBody*>(&other);
  return that && std::ranges::equal(objects, that->objects,
                                    [](const auto& a, const auto& b) { return a.isEqual(b); });
}

}  // namespace desktop

namespace platform {

using desktop::ArrayBody;
using desktop::send;
using Mutable = ArrayBody::Mutable;

namespace {

void require(const Object& object) {
  if (!object) throw desktop::invalidArgument("an array takes no nil object");
}

}  // namespace

NSArray NSArray::arrayWithObjects(std::initializer_list<Object> objects) {
  std::ranges::for_each(objects, &require);
  return desktop::make<NSArray, ArrayBody>(std::vector(objects), Mutable::No);
}

std::size_t NSArray::count() const {
  return send<ArrayBody>(*this, "count", {}, [](ArrayBody& self) { return self.objects.size(); });
}

Object NSArray::objectAtIndex(std::size_t index) const {
  return send<ArrayBody>(*this, "objectAtIndex:", {static_cast<double>(index)},
                         [&](ArrayBody& self) {
                           if (index >= self.objects.size()) {
                             throw desktop::rangeException("index " + std::to_string(index) +
                                                           " beyond the end of the array");
                           }
                           return self.objects[index];
                         });
}

NSMutableArray NSArray::mutableCopy() const {
  return send<ArrayBody>(*this, "mutableCopy", {}, [](ArrayBody& self) {
    return desktop::make<NSMutableArray, ArrayBody>(self.objects, Mutable::Yes);
  });
}

NSMutableArray NSMutableArray::array() {
  return desktop::sendClass("NSMutableArray", "array", {}, [] {
    return desktop::make<NSMutableArray, ArrayBody>(std::vector<Object>(), Mutable::Yes);
  });
}

void NSMutableArray::addObject(const Object& object) {
  send<ArrayBody>(*this, "addObject:", {object}, [&](ArrayBody& self) {
    require(object);
    self.objects.push_back(object);
  });
}

void NSMutableArray::insertObject(const Object& object, std::size_t index) {
  send<ArrayBody>(
      *this, "insertObject:atIndex:", {object, static_cast<double>(index)}, [&](ArrayBody& self) {
        require(object);
        if (index > self.objects.size()) {
          throw desktop::rangeException("index " + std::to_string(index) +
                                        " beyond the end of the array");
        }
        self.objects.insert(self.objects.begin() + static_cast<std::ptrdiff_t>(index), object);
      });
}

NSArray NSMutableArray::copy() const {
  return send<ArrayBody>(*this, "copy", {}, [](ArrayBody& self) {
    return desktop::make<NSArray, ArrayBody>(self.objects, Mutable::No);
  });
}

}  // namespace platform
