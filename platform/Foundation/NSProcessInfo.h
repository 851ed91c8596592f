#pragma once

#include <compare>

#include "platform/Object.h"

namespace platform {

/// A version of the system.
struct NSOperatingSystemVersion {
  long majorVersion = 0;
  long minorVersion = 0;
  long patchVersion = 0;
  auto operator<=>(const NSOperatingSystemVersion&) const = default;
};

/// The process that this code runs in, and its system.
class NSProcessInfo : public Object {
 public:
  static NSProcessInfo processInfo();

  bool isOperatingSystemAtLeastVersion(const NSOperatingSystemVersion& version) const;
};

}  // namespace platform
