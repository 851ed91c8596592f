#include "desktop/Identity.h"

#include <array>
#include <charconv>

#include "desktop/Foundation/PropertyListFile.h"

namespace desktop {

namespace {

constexpr std::string_view versionFile = "/System/Library/CoreServices/SystemVersion.plist";

std::optional<std::string> textIn(const plist::Dictionary& dictionary, std::string_view key) {
  const plist::Value* value = dictionary.find(key);
  return value && value->string() ? std::optional<std::string>(*value->string()) : std::nullopt;
}

}  // namespace

Identity readIdentity(const PhoneFolder& folder) {
  try {
    const auto file = readPropertyList(folder, versionFile);
    if (!file) return {};
    const plist::Dictionary system = file->entries.all();
    return {textIn(system, "ProductType"), textIn(system, "ProductVersion"),
            textIn(system, "ProductBuildVersion")};
  } catch (const UnreadableFile&) {
    return {};  // The phone works without knowing what it is.
  }
}

std::optional<platform::NSOperatingSystemVersion> parseVersion(std::string_view text) {
  platform::NSOperatingSystemVersion version;
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

}  // namespace desktop
