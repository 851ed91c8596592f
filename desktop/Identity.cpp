#include "desktop/Identity.h"

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
    return {textIn(file->dictionary, "ProductType"), textIn(file->dictionary, "ProductVersion"),
            textIn(file->dictionary, "ProductBuildVersion")};
  } catch (const UnreadableFile&) {
    return {};  // The phone works without knowing what it is.
  }
}

}  // namespace desktop
