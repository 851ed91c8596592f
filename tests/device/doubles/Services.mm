#import <Cephei/HBPreferences.h>
#import <Cephei/HBRespringController.h>
#import <CepheiPrefs/HBAppearanceSettings.h>
#import <CoreFoundation/CoreFoundation.h>
#import <MobileGestalt/MobileGestalt.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>
#include <dispatch/dispatch.h>
#include <unordered_map>

#include "desktop/Phone.h"
#include "platform/Cephei/HBAppearanceSettings.h"
#include "platform/Cephei/HBPreferences.h"
#include "platform/Cephei/HBRespringController.h"
#include "platform/CoreFoundation/CFNotificationCenter.h"
#include "platform/MobileGestalt/MGCopyAnswer.h"
#include "platform/Preferences/PSSpecifier.h"
#include "platform/dispatch/dispatch.h"
#include "platform/dlfcn/dlopen.h"
#include "tests/device/doubles/Bridge.h"
#include "tests/device/doubles/Double.h"
#include "tests/device/doubles/Service.h"

using doubles::handle;
using doubles::initialised;
using doubles::object;

/// The stand-in's object keeps its domain to itself.
static std::unordered_map<id, NSString*>& identifiers() {
  static std::unordered_map<id, NSString*> known;
  return known;
}

@implementation HBPreferences

static platform::HBPreferences own(HBPreferences* self) {
  return handle<platform::HBPreferences>(self);
}

- (instancetype)initWithIdentifier:(NSString*)identifier {
  identifiers()[self] = [identifier retain];
  return initialised(
      self, platform::HBPreferences::initWithIdentifier(handle<platform::NSString>(identifier)));
}
- (void)dealloc {
  [identifiers().extract(self).mapped() release];
  doubles::forget(self);
  [super dealloc];
}
- (NSString*)identifier {
  return identifiers().at(self);
}
- (id)objectForKey:(NSString*)key {
  return object(own(self).objectForKey(handle<platform::NSString>(key)));
}
- (void)setObject:(id)value forKey:(NSString*)key {
  own(self).setObject(handle(value), handle<platform::NSString>(key));
}
- (void)removeAllObjects {
  own(self).removeAllObjects();
}

@end

@implementation HBRespringController
+ (void)respringAndReturnTo:(NSURL*)url {
  platform::HBRespringController::respringAndReturnTo(handle<platform::NSURL>(url));
}
@end

bool doubles::cepheiHasTranslucentBars = true;

@implementation HBAppearanceSettings

static platform::HBAppearanceSettings own(HBAppearanceSettings* self) {
  return handle<platform::HBAppearanceSettings>(self);
}
static platform::UIColor color(UIColor* self) { return handle<platform::UIColor>(self); }

- (instancetype)init {
  return initialised(self, platform::HBAppearanceSettings::init());
}
#include "tests/device/doubles/Dealloc.inc"
- (void)setTintColor:(UIColor*)value {
  own(self).setTintColor(color(value));
}
- (void)setNavigationBarTitleColor:(UIColor*)value {
  own(self).setNavigationBarTitleColor(color(value));
}
- (void)setNavigationBarTintColor:(UIColor*)value {
  own(self).setNavigationBarTintColor(color(value));
}
- (void)setTableViewCellSeparatorColor:(UIColor*)value {
  own(self).setTableViewCellSeparatorColor(color(value));
}
- (void)setNavigationBarBackgroundColor:(UIColor*)value {
  own(self).setNavigationBarBackgroundColor(color(value));
}
- (void)setTableViewCellTextColor:(UIColor*)value {
  own(self).setTableViewCellTextColor(color(value));
}
- (BOOL)respondsToSelector:(SEL)selector {
  const BOOL isOfTheOlder = sel_isEqual(selector, @selector(setTranslucentNavigationBar:));
  return (doubles::cepheiHasTranslucentBars || !isOfTheOlder) &&
         [super respondsToSelector:selector];
}
- (void)setTranslucentNavigationBar:(BOOL)translucent {
  own(self).setTranslucentNavigationBar(translucent);
}
- (void)setLargeTitleStyle:(HBAppearanceSettingsLargeTitleStyle)style {
  own(self).setLargeTitleStyle(platform::HBAppearanceSettingsLargeTitleStyle(style));
}

@end

@implementation PSSpecifier

#include "tests/device/doubles/Dealloc.inc"
+ (instancetype)preferenceSpecifierNamed:(NSString*)name
                                  target:(id)target
                                     set:(SEL)set
                                     get:(SEL)get
                                  detail:(Class)detail
                                    cell:(PSCellType)cell
                                    edit:(Class)edit {
  const auto selector = [](SEL given) {
    return given ? platform::SEL(sel_getName(given)) : platform::SEL();
  };
  return object(platform::PSSpecifier::preferenceSpecifierNamed(
      handle<platform::NSString>(name), doubles::listBridgeOf(target).list(), selector(set),
      selector(get), handle<platform::Class>(detail), platform::PSCellType(cell),
      handle<platform::Class>(edit)));
}
+ (instancetype)groupSpecifierWithName:(NSString*)name {
  return object(platform::PSSpecifier::groupSpecifierWithName(handle<platform::NSString>(name)));
}
- (void)setProperty:(id)value forKey:(NSString*)key {
  handle<platform::PSSpecifier>(self).setProperty(handle(value), handle<platform::NSString>(key));
}
- (id)propertyForKey:(NSString*)key {
  return object(
      handle<platform::PSSpecifier>(self).propertyForKey(handle<platform::NSString>(key)));
}
- (void)setValues:(NSArray*)values titles:(NSArray*)titles {
  handle<platform::PSSpecifier>(self).setValues(handle<platform::NSArray>(values),
                                                handle<platform::NSArray>(titles));
}

@end

@interface DoubleCFNotificationCenter : NSObject
@end
@implementation DoubleCFNotificationCenter
#include "tests/device/doubles/Dealloc.inc"
@end

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter() {
  return (CFNotificationCenterRef)object(platform::CFNotificationCenterGetDarwinNotifyCenter());
}

void CFNotificationCenterPostNotification(CFNotificationCenterRef center, CFNotificationName name,
                                          const void* sender, CFDictionaryRef userInfo,
                                          Boolean deliverImmediately) {
  platform::CFNotificationCenterPostNotification(
      handle<platform::CFNotificationCenter>((id)center), handle<platform::NSString>((id)name),
      handle((id)sender), handle((id)userInfo),
      platform::DeliverImmediately(bool(deliverImmediately)));
}

// The stand-in's service and its files agree at all times.
std::vector<doubles::Synchronization> doubles::synchronizations;
extern const CFStringRef kCFPreferencesAnyHost = CFStringRef(@"kCFPreferencesAnyHost");

Boolean CFPreferencesSynchronize(CFStringRef domain, CFStringRef user, CFStringRef host) {
  const auto& journal = desktop::Phone::current().journal.lines();
  doubles::synchronizations.push_back({[(NSString*)domain UTF8String],
                                       [(NSString*)user UTF8String],
                                       host == kCFPreferencesAnyHost,
                                       journal.empty() ? "" : journal.back()});
  return true;
}

CFTypeRef MGCopyAnswer(CFStringRef question, CFDictionaryRef) {
  return (
      CFTypeRef)[object(platform::MGCopyAnswer(handle<platform::NSString>((id)question))) retain];
}

dispatch_time_t dispatch_time(dispatch_time_t when, int64_t delta) {
  return when + dispatch_time_t(delta);
}

dispatch_queue_t dispatch_get_main_queue() { return nullptr; }

void dispatch_after(dispatch_time_t when, dispatch_queue_t, dispatch_block_t block) {
  platform::dispatch_after(std::chrono::nanoseconds(when),
                           [kept = doubles::keep(block)] { ((dispatch_block_t)kept.get())(); });
}
