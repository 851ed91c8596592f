#include "device/Native.h"
#include "platform/Foundation/NSArray.h"

namespace platform {

using device::adopt;
using device::native;

NSMutableArray NSMutableArray::array() {
  return device::handle<NSMutableArray>([::NSMutableArray array]);
}

NSMutableArray NSMutableArray::initWithArray(const NSArray& array) {
  return adopt<NSMutableArray>([[::NSMutableArray alloc] initWithArray:native(array)]);
}

void NSMutableArray::addObject(const Object& object) {
  [native(*this) addObject:device::object(object)];
}

void NSMutableArray::insertObject(const Object& object, std::size_t index) {
  [native(*this) insertObject:device::object(object) atIndex:index];
}

void NSMutableArray::replaceObjectAtIndex(std::size_t index, const Object& object) {
  [native(*this) replaceObjectAtIndex:index withObject:device::object(object)];
}

void NSMutableArray::removeObject(const Object& object) {
  [native(*this) removeObject:device::object(object)];
}

void NSMutableArray::removeObjectsInArray(const NSArray& objects) {
  [native(*this) removeObjectsInArray:native(objects)];
}

NSArray NSMutableArray::copy() const { return adopt<NSArray>([native(*this) copy]); }

}  // namespace platform
