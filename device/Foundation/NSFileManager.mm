#include "platform/Foundation/NSFileManager.h"

#include "device/Native.h"
#include "device/Paths.h"

namespace platform {

using device::handle;
using device::native;
using device::resolved;

NSFileManager NSFileManager::defaultManager() {
  return handle<NSFileManager>([::NSFileManager defaultManager]);
}

NSArray NSFileManager::contentsOfDirectoryAtPath(const NSString& path) const {
  return handle<NSArray>([native(*this) contentsOfDirectoryAtPath:resolved(path) error:nullptr]);
}

bool NSFileManager::fileExistsAtPath(const NSString& path) const {
  return [native(*this) fileExistsAtPath:resolved(path)];
}

bool NSFileManager::removeItemAtPath(const NSString& path) const {
  return [native(*this) removeItemAtPath:resolved(path) error:nullptr];
}

}  // namespace platform
