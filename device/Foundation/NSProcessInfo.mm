#include "platform/Foundation/NSProcessInfo.h"

#include "device/Native.h"

namespace platform {

NSProcessInfo NSProcessInfo::processInfo() {
  return device::handle<NSProcessInfo>([::NSProcessInfo processInfo]);
}

bool NSProcessInfo::isOperatingSystemAtLeastVersion(const NSOperatingSystemVersion& version) const {
  return [device::native(*this)
      isOperatingSystemAtLeastVersion:{version.majorVersion, version.minorVersion,
                                       version.patchVersion}];
}

}  // namespace platform
