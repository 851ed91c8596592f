#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "desktop/PhoneFolder.h"
#include "platform/Foundation/NSProcessInfo.h"

namespace desktop {

/// What a phone says about itself; none what it does not know.
struct Identity {
  /// "iPhone10,6", say.
  std::optional<std::string> productType;
  /// "14.8.1", say.
  std::optional<std::string> productVersion;
  /// "18H107", say.
  std::optional<std::string> buildVersion;
};

/// What the phone's SystemVersion.plist says. A phone's own names no product type, which its
/// hardware knows there. A file that is missing or unreadable gives nothing.
Identity readIdentity(const PhoneFolder& folder);

/// Reads "14", "14.8" or "14.8.1"; none for anything else.
std::optional<platform::NSOperatingSystemVersion> parseVersion(std::string_view text);

}  // namespace desktop
