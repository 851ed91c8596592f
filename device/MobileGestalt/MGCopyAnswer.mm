#include "platform/MobileGestalt/MGCopyAnswer.h"

#import <MobileGestalt/MobileGestalt.h>

#include "device/Native.h"

namespace platform {

NSString MGCopyAnswer(const NSString& question) {
  // The answer is the caller's to release, so the handle takes it over as it is.
  ::CFTypeRef answer = ::MGCopyAnswer((__bridge CFStringRef)device::native(question), nullptr);
  return Backend::adopt<NSString>(const_cast<void*>(answer));
}

}  // namespace platform
