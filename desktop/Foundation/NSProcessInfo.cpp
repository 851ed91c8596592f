#include "platform/Foundation/NSProcessInfo.h"

#include <string>

#include "desktop/Message.h"

namespace platform {

namespace {

class ProcessInfoBody : public desktop::Body {
 public:
  std::string_view className() const override { return "NSProcessInfo"; }
};

std::string textOf(const NSOperatingSystemVersion& version) {
  return std::to_string(version.majorVersion) + '.' + std::to_string(version.minorVersion) + '.' +
         std::to_string(version.patchVersion);
}

}  // namespace

NSProcessInfo NSProcessInfo::processInfo() {
  return desktop::sendClass("NSProcessInfo", "processInfo", {}, [] {
    static const auto info = desktop::make<NSProcessInfo, ProcessInfoBody>();
    return info;
  });
}

bool NSProcessInfo::isOperatingSystemAtLeastVersion(const NSOperatingSystemVersion& version) const {
  return desktop::send<ProcessInfoBody>(
      *this, "isOperatingSystemAtLeastVersion:", {std::string_view(textOf(version))},
      [&](ProcessInfoBody&) {
        const auto known =
            desktop::parseVersion(desktop::Phone::current().identity.productVersion.value_or(""));
        // A phone that does not know its system counts as the newest.
        return !known || *known >= version;
      });
}

}  // namespace platform
