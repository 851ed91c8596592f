#include "platform/ObjectiveC/Class.h"

#include "device/Native.h"

namespace platform {

Class NSClassFromString(const NSString& name) {
  return device::handle<Class>(::NSClassFromString(device::native(name)));
}

}  // namespace platform
