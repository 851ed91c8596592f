#include "platform/Cephei/HBPreferences.h"

#include "desktop/Foundation/Values.h"
#include "desktop/Message.h"

namespace platform {

namespace {

class PreferencesBody : public desktop::Body {
 public:
  explicit PreferencesBody(std::string identifier) : domain(std::move(identifier)) {}
  std::string_view className() const override { return "HBPreferences"; }

  const std::string domain;
};

}  // namespace

HBPreferences HBPreferences::initWithIdentifier(const NSString& identifier) {
  return desktop::sendClass("HBPreferences", "initWithIdentifier:", {identifier}, [&] {
    return desktop::make<HBPreferences, PreferencesBody>(identifier.UTF8String());
  });
}

Object HBPreferences::objectForKey(const NSString& key) const {
  return desktop::send<PreferencesBody>(*this, "objectForKey:", {key}, [&](PreferencesBody& self) {
    if (!key) return Object();
    const auto value = desktop::Phone::current().preferences.value(self.domain, key.UTF8String());
    return value ? desktop::box(*value) : Object();
  });
}

void HBPreferences::setObject(const Object& object, const NSString& key) {
  desktop::send<PreferencesBody>(
      *this, "setObject:forKey:", {object, key}, [&](PreferencesBody& self) {
        desktop::Phone::current().preferences.set(
            self.domain, key.UTF8String(),
            object ? std::optional(desktop::unbox(object)) : std::nullopt);
      });
}

void HBPreferences::removeAllObjects() {
  desktop::send<PreferencesBody>(*this, "removeAllObjects", {}, [](PreferencesBody& self) {
    desktop::Phone::current().preferences.clear(self.domain);
  });
}

}  // namespace platform
