#include "platform/Cephei/HBPreferences.h"

#import <Cephei/HBPreferences.h>

#include "device/CoreFoundation/Preferences.h"
#include "device/Native.h"

namespace platform {

using device::native;

HBPreferences HBPreferences::initWithIdentifier(const NSString& identifier) {
  return device::adopt<HBPreferences>(
      [[::HBPreferences alloc] initWithIdentifier:native(identifier)]);
}

Object HBPreferences::objectForKey(const NSString& key) const {
  return device::handle<Object>([native(*this) objectForKey:native(key)]);
}

void HBPreferences::setObject(const Object& object, const NSString& key) {
  [native(*this) setObject:device::object(object) forKey:native(key)];
  device::synchronize([native(*this) identifier]);
}

void HBPreferences::removeAllObjects() {
  [native(*this) removeAllObjects];
  device::synchronize([native(*this) identifier]);
}

}  // namespace platform
