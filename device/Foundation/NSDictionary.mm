#include "platform/Foundation/NSDictionary.h"

#include "device/CoreFoundation/Preferences.h"
#include "device/Native.h"
#include "device/Paths.h"

namespace platform {

using device::adopt;
using device::handle;
using device::native;

NSDictionary NSDictionary::dictionaryWithContentsOfFile(const NSString& path) {
  device::synchronizeFile(native(path));
  return handle<NSDictionary>([::NSDictionary dictionaryWithContentsOfFile:device::resolved(path)]);
}

Object NSDictionary::objectForKey(const NSString& key) const {
  return handle<Object>([native(*this) objectForKey:native(key)]);
}

NSMutableDictionary NSMutableDictionary::init() {
  return adopt<NSMutableDictionary>([[::NSMutableDictionary alloc] init]);
}

NSMutableDictionary NSMutableDictionary::initWithContentsOfFile(const NSString& path) {
  device::synchronizeFile(native(path));
  return adopt<NSMutableDictionary>(
      [[::NSMutableDictionary alloc] initWithContentsOfFile:device::resolved(path)]);
}

void NSMutableDictionary::setObject(const Object& object, const NSString& key) {
  [native(*this) setObject:device::object(object) forKey:native(key)];
}

bool NSMutableDictionary::writeToFile(const NSString& path, Atomically atomically) const {
  return [native(*this) writeToFile:device::resolved(path)
                         atomically:atomically == Atomically::Yes];
}

}  // namespace platform
