#include "platform/Object.h"

#include "device/Bridge.h"

namespace platform {

using device::object;

#if __has_feature(objc_arc)
Object::Object(const Object& other) noexcept : reference_((__bridge_retained void*)object(other)) {}
Object::~Object() { (void)(__bridge_transfer id)reference_; }
#else
Object::Object(const Object& other) noexcept : reference_([object(other) retain]) {}
Object::~Object() { [object(*this) release]; }
#endif

bool Object::isEqual(const Object& other) const { return [object(*this) isEqual:object(other)]; }

}  // namespace platform
