#include "prefs/QMPage.h"

#include "platform/Cephei/HBPreferences.h"
#include "platform/CoreFoundation/CFNotificationCenter.h"
#include "platform/Foundation/NSDictionary.h"
#include "prefs/Appearance.h"
#include "prefs/Quillmere.h"

namespace quillmere {

using namespace platform;

namespace {

NSString preferencesPath(const PSSpecifier& specifier) {
  return NSString::stringWithFormat("/User/Library/Preferences/%@.plist",
                                    {specifier.propertyForKey("defaults")});
}

NSString keyOf(const PSSpecifier& specifier) {
  return specifier.propertyForKey("key").as<NSString>();
}

void announce(const NSString& name) {
  CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(), name, Object(),
                                       Object(), DeliverImmediately::Yes);
}

}  // namespace

bool QMPage::init() {
  if (!HBRootListController::init()) return false;
  hb_setAppearanceSettings(sharedAppearance());
  return true;
}

NSArray QMPage::specifiers() {
  if (!_specifiers()) set_specifiers(buildRows().copy());
  return _specifiers();
}

Object QMPage::readPreferenceValue(const PSSpecifier& specifier) {
  NSDictionary settings = NSDictionary::dictionaryWithContentsOfFile(preferencesPath(specifier));
  Object stored = settings.objectForKey(keyOf(specifier));
  return stored ? stored : specifier.propertyForKey("default");
}

void QMPage::setPreferenceValue(const Object& value, const PSSpecifier& specifier) {
  NSMutableDictionary settings =
      NSMutableDictionary::initWithContentsOfFile(preferencesPath(specifier));
  settings.setObject(value, keyOf(specifier));
  settings.writeToFile(preferencesPath(specifier), Atomically::Yes);

  if (NSString name = specifier.propertyForKey("PostNotification").as<NSString>()) announce(name);

  // The service always keeps the add-on's own domain, whatever file the row names.
  HBPreferences::initWithIdentifier(domain).setObject(value, keyOf(specifier));
  announce(prefsChanged);
}

std::span<const Method> QMPage::methods() const { return pageMethods; }

}  // namespace quillmere
