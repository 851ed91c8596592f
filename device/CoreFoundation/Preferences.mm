#include "device/CoreFoundation/Preferences.h"

#import <CoreFoundation/CoreFoundation.h>

namespace device {

void synchronize(::NSString* domain) {
  // By this name, and not as the current user, does the library that writes know the user: under
  // the other the service would keep a second copy in this process.
  if (domain) {
    ::CFPreferencesSynchronize((__bridge CFStringRef)domain, (__bridge CFStringRef) @"mobile",
                               kCFPreferencesAnyHost);
  }
}

void synchronizeFile(::NSString* path) {
  if (path)
    synchronize([[[NSURL fileURLWithPath:path] URLByDeletingPathExtension] lastPathComponent]);
}

}  // namespace device
