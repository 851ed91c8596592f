#include "platform/Foundation/NSFileManager.h"

#include <system_error>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Message.h"
#include "plist/TextBlock.h"

namespace platform {

using desktop::Phone;
using desktop::send;

namespace {

class FileManagerBody : public desktop::Body {
 public:
  std::string_view className() const override { return "NSFileManager"; }
};

NSArray namesIn(const std::string& path) {
  try {
    plist::TextBlock names;
    plist::Array texts;
    Phone::current().folder.list(path, [&](std::string_view name) {
      // A file name may be any bytes here; on the phone it is text, and so are strings.
      if (auto text = names.append(name)) {
        texts.append(*std::move(text));
      } else {
        Phone::current().report("a file whose name is not UTF-8 is passed over");
      }
    });
    return desktop::make<NSArray, desktop::ArrayBody>(desktop::Elements(std::move(texts)),
                                                      desktop::ArrayBody::Mutable::No);
  } catch (const std::system_error&) {
    return {};  // The platform answers nil here and says no more.
  }
}

bool remove(const std::string& path) {
  try {
    return Phone::current().folder.remove(path);
  } catch (const std::system_error& failure) {
    if (failure.code() != std::errc::no_such_file_or_directory) {
      Phone::current().reportLoss(path + " was not deleted: " + failure.code().message());
    }
    return false;
  }
}

/// What cannot be looked at counts as standing there: it is not to be taken for absent, and made
/// anew.
bool exists(const std::string& path) {
  try {
    return Phone::current().folder.exists(path);
  } catch (const std::system_error&) {
    return true;
  }
}

}  // namespace

NSFileManager NSFileManager::defaultManager() {
  return desktop::sendClass("NSFileManager", "defaultManager", {}, [] {
    static const auto manager = desktop::make<NSFileManager, FileManagerBody>();
    return manager;
  });
}

NSArray NSFileManager::contentsOfDirectoryAtPath(const NSString& path) const {
  return send<FileManagerBody>(*this, "contentsOfDirectoryAtPath:error:", {path, Object()},
                               [&](FileManagerBody&) { return namesIn(path.UTF8String()); });
}

bool NSFileManager::fileExistsAtPath(const NSString& path) const {
  return send<FileManagerBody>(*this, "fileExistsAtPath:", {path},
                               [&](FileManagerBody&) { return exists(path.UTF8String()); });
}

bool NSFileManager::removeItemAtPath(const NSString& path) const {
  return send<FileManagerBody>(*this, "removeItemAtPath:error:", {path, Object()},
                               [&](FileManagerBody&) { return remove(path.UTF8String()); });
}

}  // namespace platform
