#include "lotties/QMLottiesList.h"
#include "platform/Cephei/HBPreferences.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSFileManager.h"
#include "platform/Foundation/NSPredicate.h"
#include "prefs/Quillmere.h"

namespace quillmere {

using namespace platform;

namespace {

constexpr const char* animationFolder = "/Library/Lotties/Quillmere";

/// The names of the animation files, without their extension, in the folder's own order.
NSMutableArray installedAnimations() {
  const NSArray entries =
      NSFileManager::defaultManager().contentsOfDirectoryAtPath(animationFolder);
  const NSPredicate isAnimation = NSPredicate::predicateWithFormat("self ENDSWITH '.lottie'");
  NSMutableArray names =
      NSMutableArray::initWithArray(entries.filteredArrayUsingPredicate(isAnimation));
  for (std::size_t i = 0; i < names.count(); ++i) {
    names.replaceObjectAtIndex(
        i, names.objectAtIndex(i).as<NSString>().stringByDeletingPathExtension());
  }
  return names;
}

bool holdsStringsOnly(const NSArray& list) {
  for (std::size_t i = 0; i < list.count(); ++i) {
    if (!NSString::isKind(list.objectAtIndex(i))) return false;
  }
  return true;
}

/// The names in what is stored. Whatever else stands there is not shown, and gives way only when
/// the list is stored anew.
NSMutableArray namesIn(const Object& stored) {
  if (!NSArray::isKind(stored)) return NSMutableArray::array();
  const NSArray list = stored.as<NSArray>();
  if (holdsStringsOnly(list)) return list.mutableCopy();
  NSMutableArray names = NSMutableArray::array();
  for (std::size_t i = 0; i < list.count(); ++i) {
    if (NSString::isKind(list.objectAtIndex(i))) names.addObject(list.objectAtIndex(i));
  }
  return names;
}

}  // namespace

void QMLottiesList::buildCatalogue() {
  allViews = installedAnimations();
  defaultViews =
      NSArray::arrayWithObjects({NSString("Clock"), NSString("Nice Buttons")}).mutableCopy();
  disabledViews = allViews.mutableCopy();

  const HBPreferences preferences = HBPreferences::initWithIdentifier(domain);
  // An empty list is an answer as well: nothing is enabled then.
  enabledViews = preferences.objectForKey(enabledLottiesKey)
                     ? namesIn(preferences.objectForKey(enabledLottiesKey))
                     : defaultViews.mutableCopy();
  disabledViews.removeObjectsInArray(enabledViews);
}

void QMLottiesList::save() {
  NSMutableDictionary settings = NSFileManager::defaultManager().fileExistsAtPath(preferencesFile)
                                     ? NSMutableDictionary::initWithContentsOfFile(preferencesFile)
                                     : NSMutableDictionary::init();
  settings.setObject(enabledViews, enabledLottiesKey);
  settings.writeToFile(preferencesFile, Atomically::Yes);
  HBPreferences::initWithIdentifier(domain).setObject(enabledViews, enabledLottiesKey);
}

}  // namespace quillmere
