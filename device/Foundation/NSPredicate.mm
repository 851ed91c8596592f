#include "platform/Foundation/NSPredicate.h"

#include "device/Native.h"

namespace platform {

NSPredicate NSPredicate::predicateWithFormat(const NSString& format) {
  return device::handle<NSPredicate>([::NSPredicate predicateWithFormat:device::native(format)]);
}

}  // namespace platform
