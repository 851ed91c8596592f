#include "platform/CoreFoundation/CFNotificationCenter.h"

#import <CoreFoundation/CoreFoundation.h>

#include "device/Native.h"

namespace platform {

using device::native;

CFNotificationCenter CFNotificationCenterGetDarwinNotifyCenter() {
  return device::handle<CFNotificationCenter>(
      (__bridge id)::CFNotificationCenterGetDarwinNotifyCenter());
}

void CFNotificationCenterPostNotification(const CFNotificationCenter& center, const NSString& name,
                                          const Object& object, const Object& userInfo,
                                          DeliverImmediately deliverImmediately) {
  // A function, unlike a message, does not take nil for its receiver.
  if (!center) return;
  ::CFNotificationCenterPostNotification((__bridge CFNotificationCenterRef)device::object(center),
                                         (__bridge CFStringRef)native(name),
                                         (__bridge const void*)device::object(object),
                                         (__bridge CFDictionaryRef)device::object(userInfo),
                                         deliverImmediately == DeliverImmediately::Yes);
}

}  // namespace platform
