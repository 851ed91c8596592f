#include "platform/Foundation/NSProcessInfo.h"

#include <array>
#include <charconv>
#include <optional>
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

/// Reads "14", "14.8" or "14.8.1"; none for anything else.
std::optional<NSOperatingSystemVersion> versionIn(std::string_view text) {
  NSOperatingSystemVersion version;
  const std::array parts = {&version.majorVersion, &version.minorVersion, &version.patchVersion};
  const char* const end = text.data() + text.size();
  const char* at = text.data();
  for (long* part : parts) {
    const auto [next, error] = std::from_chars(at, end, *part);
    if (error != std::errc() || *part < 0) return std::nullopt;
    if (next == end) return version;
    if (*next != '.') return std::nullopt;
    at = next + 1;
  }
  return std::nullopt;
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
            versionIn(desktop::Phone::current().identity.productVersion.value_or(""));
        // A phone that does not know its system counts as the newest.
        return !known || *known >= version;
      });
}

}  // namespace platform
