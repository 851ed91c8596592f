#include "desktop/Foundation/PropertyListFile.h"

#include <cerrno>
#include <system_error>

namespace desktop {

static_assert(plist::Limits().bytes <= PhoneFolder::maximumFileSize);

std::optional<PropertyListFile> readPropertyList(const PhoneFolder& folder, std::string_view path) {
  try {
    std::optional<std::string> bytes = folder.read(path);
    if (!bytes) return std::nullopt;
    if (auto plain = plist::PlainBinary::in(*bytes)) {
      return PropertyListFile{Entries(*std::move(plain)), plist::Form::Binary};
    }
    plist::Document document = plist::read(*std::move(bytes));
    if (const plist::Dictionary* dictionary = document.root.dictionary()) {
      return PropertyListFile{Entries(*dictionary), document.form};
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
  const plist::PlainBinary* plain = file.entries.file();
  if (plain && file.form == plist::Form::Binary) return folder.replace(path, plain->bytes());
  const auto bytes = plist::write(plist::Value(file.entries.all()), file.form);
  if (!bytes) throw std::system_error(EFBIG, std::generic_category(), std::string(path));
  folder.replace(path, *bytes);
}

}  // namespace desktop
