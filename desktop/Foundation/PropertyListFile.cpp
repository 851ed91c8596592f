#include "desktop/Foundation/PropertyListFile.h"

#include <cerrno>
#include <system_error>

namespace desktop {
namespace {

constexpr plist::Limits kLimits = {.bytes = PhoneFolder::maximumFileSize};

}  // namespace

std::optional<PropertyListFile> readPropertyList(const PhoneFolder& folder, std::string_view path) {
  try {
    std::optional<std::string> bytes = folder.read(path);
    if (!bytes) return std::nullopt;
    plist::Document document = plist::read(*std::move(bytes), kLimits);
    if (const plist::Dictionary* dictionary = document.root.dictionary()) {
      return PropertyListFile{*dictionary, document.form};
    }
    throw UnreadableFile("its root is not a dictionary");
  } catch (const plist::Unreadable& unreadable) {
    throw UnreadableFile(unreadable.what());
  } catch (const std::system_error& failure) {
    throw UnreadableFile(failure.code().message());
  }
}

void writePropertyList(const PhoneFolder& folder, std::string_view path,
                       const PropertyListFile& file) {
  const std::optional<std::string> bytes =
      plist::write(plist::Value(file.dictionary), file.form, kLimits);
  if (!bytes) throw std::system_error(EFBIG, std::generic_category(), std::string(path));
  folder.replace(path, *bytes);
}

}  // namespace desktop
