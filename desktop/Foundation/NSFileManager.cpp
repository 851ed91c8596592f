#include "platform/Foundation/NSFileManager.h"

#include <system_error>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Message.h"
#include "plist/Text.h"

namespace platform {

using desktop::Phone;
using desktop::send;

namespace {

class FileManagerBody : public desktop::Body {
 public:
  std::string_view className() const override { return "NSFileManager"; }
};

/// A file name may be any bytes here; on the phone it is text, and so are strings.
bool isUsable(const std::string& name) {
  if (plist::isText(name)) return true;
  Phone::current().report("a file whose name is not UTF-8 is passed over");
  return false;
}

NSArray namesIn(const std::string& path) {
  try {
    std::vector<Object> names;
    for (const std::string& name : Phone::current().folder.list(path)) {
      if (isUsable(name)) names.push_back(NSString(std::string_view(name)));
    }
    return desktop::make<NSArray, desktop::ArrayBody>(std::move(names),
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
