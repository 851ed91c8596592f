#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Message.h"
#include "platform/Foundation/NSArray.h"

namespace platform {

using desktop::ArrayBody;
using desktop::send;
using Mutable = ArrayBody::Mutable;

NSMutableArray NSMutableArray::array() {
  return desktop::sendClass("NSMutableArray", "array", {}, [] {
    return desktop::make<NSMutableArray, ArrayBody>(desktop::Elements(), Mutable::Yes);
  });
}

NSMutableArray NSMutableArray::initWithArray(const NSArray& array) {
  return desktop::sendClass("NSMutableArray", "initWithArray:", {array}, [&] {
    return desktop::make<NSMutableArray, ArrayBody>(desktop::elementsIn(array), Mutable::Yes);
  });
}

void NSMutableArray::addObject(const Object& object) {
  send<ArrayBody>(*this, "addObject:", {object}, [&](ArrayBody& self) {
    desktop::requireObject(object);
    self.elements.insert(self.elements.size(), object);
  });
}

void NSMutableArray::insertObject(const Object& object, std::size_t index) {
  send<ArrayBody>(*this, "insertObject:atIndex:", {object, static_cast<double>(index)},
                  [&](ArrayBody& self) {
                    desktop::requireObject(object);
                    desktop::requireIndex(index, self.elements.size() + 1);
                    self.elements.insert(index, object);
                  });
}

void NSMutableArray::replaceObjectAtIndex(std::size_t index, const Object& object) {
  send<ArrayBody>(*this, "replaceObjectAtIndex:withObject:", {static_cast<double>(index), object},
                  [&](ArrayBody& self) {
                    desktop::requireObject(object);
                    desktop::requireIndex(index, self.elements.size());
                    self.elements.replace(index, object);
                  });
}

void NSMutableArray::removeObject(const Object& object) {
  send<ArrayBody>(*this, "removeObject:", {object}, [&](ArrayBody& self) {
    desktop::requireObject(object);
    self.elements.remove(object);
  });
}

void NSMutableArray::removeObjectsInArray(const NSArray& objects) {
  send<ArrayBody>(*this, "removeObjectsInArray:", {objects},
                  [&](ArrayBody& self) { self.elements.removeAll(desktop::elementsIn(objects)); });
}

NSArray NSMutableArray::copy() const {
  return send<ArrayBody>(*this, "copy", {}, [](ArrayBody& self) {
    return desktop::make<NSArray, ArrayBody>(self.elements, Mutable::No);
  });
}

}  // namespace platform
