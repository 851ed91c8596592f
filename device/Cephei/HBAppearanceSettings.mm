#include "platform/Cephei/HBAppearanceSettings.h"

#import <CepheiPrefs/HBAppearanceSettings.h>

#include "device/Native.h"

namespace platform {

using device::native;
using Style = HBAppearanceSettingsLargeTitleStyle;

static_assert(static_cast<unsigned long>(Style::RootOnly) ==
              ::HBAppearanceSettingsLargeTitleStyleRootOnly);
static_assert(static_cast<unsigned long>(Style::Always) ==
              ::HBAppearanceSettingsLargeTitleStyleAlways);
static_assert(static_cast<unsigned long>(Style::Never) ==
              ::HBAppearanceSettingsLargeTitleStyleNever);

HBAppearanceSettings HBAppearanceSettings::init() {
  return device::adopt<HBAppearanceSettings>([[::HBAppearanceSettings alloc] init]);
}

void HBAppearanceSettings::setTintColor(const UIColor& color) {
  [native(*this) setTintColor:native(color)];
}

void HBAppearanceSettings::setNavigationBarTitleColor(const UIColor& color) {
  [native(*this) setNavigationBarTitleColor:native(color)];
}

void HBAppearanceSettings::setNavigationBarTintColor(const UIColor& color) {
  [native(*this) setNavigationBarTintColor:native(color)];
}

void HBAppearanceSettings::setTableViewCellSeparatorColor(const UIColor& color) {
  [native(*this) setTableViewCellSeparatorColor:native(color)];
}

void HBAppearanceSettings::setNavigationBarBackgroundColor(const UIColor& color) {
  [native(*this) setNavigationBarBackgroundColor:native(color)];
}

void HBAppearanceSettings::setTableViewCellTextColor(const UIColor& color) {
  [native(*this) setTableViewCellTextColor:native(color)];
}

void HBAppearanceSettings::setTranslucentNavigationBar(bool translucent) {
  // Version 2 has dropped it.
  if ([native(*this) respondsToSelector:@selector(setTranslucentNavigationBar:)]) {
    [native(*this) setTranslucentNavigationBar:translucent];
  }
}

void HBAppearanceSettings::setLargeTitleStyle(HBAppearanceSettingsLargeTitleStyle style) {
  [native(*this) setLargeTitleStyle:static_cast<::HBAppearanceSettingsLargeTitleStyle>(style)];
}

}  // namespace platform
