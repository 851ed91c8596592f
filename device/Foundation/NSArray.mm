#include "platform/Foundation/NSArray.h"

#include <vector>

#include "device/Native.h"
#include "platform/Foundation/NSPredicate.h"

namespace platform {

using device::handle;
using device::native;

bool NSArray::isKind(const Object& object) {
  return [device::object(object) isKindOfClass:[::NSArray class]];
}

NSArray NSArray::arrayWithObjects(std::initializer_list<Object> objects) {
  std::vector<id> natives;
  for (const Object& each : objects) natives.push_back(device::object(each));
  return handle<NSArray>([::NSArray arrayWithObjects:natives.data() count:natives.size()]);
}

std::size_t NSArray::count() const { return [native(*this) count]; }

Object NSArray::objectAtIndex(std::size_t index) const {
  return handle<Object>([native(*this) objectAtIndex:index]);
}

NSArray NSArray::filteredArrayUsingPredicate(const NSPredicate& predicate) const {
  return handle<NSArray>([native(*this) filteredArrayUsingPredicate:native(predicate)]);
}

NSMutableArray NSArray::mutableCopy() const {
  return device::adopt<NSMutableArray>([native(*this) mutableCopy]);
}

}  // namespace platform
