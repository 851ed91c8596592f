#include "platform/OrvalenPrefs/OrvalenWelcome.h"

#import <OrvalenPrefs/OrvalenWelcome.h>
#include <objc/runtime.h>

#include "device/Native.h"
#include "device/Paths.h"

namespace platform {

using device::native;

OrvalenWelcome OrvalenWelcome::init() {
  // By name, because the bundle must load without the maker's library as well.
  return device::adopt<OrvalenWelcome>([(::Class)objc_getClass("OrvalenWelcome") new]);
}

void OrvalenWelcome::setSubtitleText(const NSString& text) {
  [native(*this) setSubtitleText:native(text)];
}

void OrvalenWelcome::setItem_one_title(const NSString& text) {
  [native(*this) setItem_one_title:native(text)];
}

void OrvalenWelcome::setItem_one_description(const NSString& text) {
  [native(*this) setItem_one_description:native(text)];
}

void OrvalenWelcome::setItem_two_title(const NSString& text) {
  [native(*this) setItem_two_title:native(text)];
}

void OrvalenWelcome::setItem_two_description(const NSString& text) {
  [native(*this) setItem_two_description:native(text)];
}

void OrvalenWelcome::setItem_three_title(const NSString& text) {
  [native(*this) setItem_three_title:native(text)];
}

void OrvalenWelcome::setItem_three_description(const NSString& text) {
  [native(*this) setItem_three_description:native(text)];
}

void OrvalenWelcome::setButtonTitle(const NSString& text) {
  [native(*this) setButtonTitle:native(text)];
}

void OrvalenWelcome::setButtonCaption(const NSString& text) {
  [native(*this) setButtonCaption:native(text)];
}

void OrvalenWelcome::setTitleText(const NSString& text) {
  [native(*this) setTitleText:native(text)];
}

void OrvalenWelcome::setPackage_ID(const NSString& identifier) {
  [native(*this) setPackage_ID:native(identifier)];
}

void OrvalenWelcome::setBundle_Name(const NSString& path) {
  [native(*this) setBundle_Name:device::resolved(path)];
}

void OrvalenWelcome::setTintColor(const UIColor& color) {
  [native(*this) setTintColor:native(color)];
}

}  // namespace platform
