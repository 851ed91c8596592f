#include "platform/Foundation/NSDictionary.h"

#include <system_error>

#include "desktop/Foundation/DictionaryBody.h"
#include "desktop/Foundation/PropertyListFile.h"
#include "desktop/Foundation/Values.h"
#include "desktop/Message.h"

namespace desktop {

std::string DictionaryBody::description() const {
  std::string text = "{";
  for (const auto& entry : file.entries.all()) {
    if (text.size() > 1) text += ", ";
    text += std::string(entry.key()) + " = " + desktop::debugDescription(box(entry.value()));
  }
  return text + "}";
}

bool DictionaryBody::isEqual(const Body& other) const {
  const auto* that = dynamic_cast<const DictionaryBody*>(&other);
  return that && that->file.entries.all() == file.entries.all();
}

}  // namespace desktop

namespace platform {

using desktop::DictionaryBody;
using desktop::send;
using Mutable = DictionaryBody::Mutable;

namespace {

template <class Handle>
Handle load(const NSString& path, Mutable isMutable) {
  try {
    auto file = desktop::readPropertyList(desktop::Phone::current().folder,
                                          desktop::textIn(path).value_or(""));
    if (!file) return {};
    return desktop::make<Handle, DictionaryBody>(*std::move(file), isMutable);
  } catch (const desktop::UnreadableFile&) {
    return {};  // The platform answers nil here and says no more.
  }
}

}  // namespace

NSDictionary NSDictionary::dictionaryWithContentsOfFile(const NSString& path) {
  return desktop::sendClass("NSDictionary", "dictionaryWithContentsOfFile:", {path},
                            [&] { return load<NSDictionary>(path, Mutable::No); });
}

Object NSDictionary::objectForKey(const NSString& key) const {
  return send<DictionaryBody>(*this, "objectForKey:", {key}, [&](DictionaryBody& self) {
    if (!key) return Object();
    const auto value = self.file.entries.find(desktop::textIn(key).value_or(""));
    return value ? desktop::box(*value) : Object();
  });
}

NSMutableDictionary NSMutableDictionary::init() {
  return desktop::sendClass("NSMutableDictionary", "init", {}, [] {
    return desktop::make<NSMutableDictionary, DictionaryBody>(desktop::PropertyListFile(),
                                                              Mutable::Yes);
  });
}

NSMutableDictionary NSMutableDictionary::initWithContentsOfFile(const NSString& path) {
  return desktop::sendClass("NSMutableDictionary", "initWithContentsOfFile:", {path},
                            [&] { return load<NSMutableDictionary>(path, Mutable::Yes); });
}

void NSMutableDictionary::setObject(const Object& object, const NSString& key) {
  send<DictionaryBody>(*this, "setObject:forKey:", {object, key}, [&](DictionaryBody& self) {
    if (!key) throw desktop::invalidArgument("key is nil");
    self.file.entries.set(desktop::textIn(key).value_or(""), desktop::unbox(object));
  });
}

bool NSMutableDictionary::writeToFile(const NSString& path, Atomically atomically) const {
  // Every write is atomic here: there is no reason to offer the other kind.
  return send<DictionaryBody>(
      *this, "writeToFile:atomically:", {path, atomically == Atomically::Yes},
      [&](DictionaryBody& self) {
        desktop::Phone& phone = desktop::Phone::current();
        try {
          writePropertyList(phone.folder, path.UTF8String(), self.file);
          return true;
        } catch (const std::exception& failure) {
          phone.reportLoss(path.UTF8String() + " was not written: " + failure.what());
          return false;
        }
      });
}

}  // namespace platform
