#pragma once

// What the bundle uses of Core Foundation, declared as Apple documents it, for building without an
// SDK.

typedef unsigned char Boolean;
typedef const void* CFTypeRef;
typedef const struct __attribute__((objc_bridge(NSString))) __CFString* CFStringRef;
typedef const struct __attribute__((objc_bridge(NSDictionary))) __CFDictionary* CFDictionaryRef;

extern "C" {

typedef struct __attribute__((objc_bridge_mutable(id)))
__CFNotificationCenter* CFNotificationCenterRef;
typedef CFStringRef CFNotificationName;

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter(void);
void CFNotificationCenterPostNotification(CFNotificationCenterRef center, CFNotificationName name,
                                          const void* object, CFDictionaryRef userInfo,
                                          Boolean deliverImmediately);

extern const CFStringRef kCFPreferencesAnyHost;

Boolean CFPreferencesSynchronize(CFStringRef applicationID, CFStringRef userName,
                                 CFStringRef hostName);

}  // extern "C"
