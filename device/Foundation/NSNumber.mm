#include "platform/Foundation/NSNumber.h"

#include "device/Native.h"

namespace platform {

using device::handle;
using device::native;

NSNumber NSNumber::numberWithBool(bool value) {
  return handle<NSNumber>([::NSNumber numberWithBool:value]);
}

NSNumber NSNumber::numberWithInt(int value) {
  return handle<NSNumber>([::NSNumber numberWithInt:value]);
}

bool NSNumber::boolValue() const {
  // A preferences file may hold anything under a number's key.
  return [native(*this) respondsToSelector:@selector(boolValue)] && [native(*this) boolValue];
}

}  // namespace platform
