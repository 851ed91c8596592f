#include "prefs/Appearance.h"

#include "prefs/Quillmere.h"

namespace quillmere {

using namespace platform;

UIColor accentColor() {
  return UIColor::colorWithRed(accent.red / 255.0, accent.green / 255.0, accent.blue / 255.0, 1.0);
}

HBAppearanceSettings sharedAppearance() {
  HBAppearanceSettings appearance = HBAppearanceSettings::init();
  appearance.setTintColor(accentColor());
  appearance.setNavigationBarTitleColor(UIColor::whiteColor());
  appearance.setNavigationBarTintColor(UIColor::whiteColor());
  appearance.setTableViewCellSeparatorColor(UIColor::clearColor());
  appearance.setNavigationBarBackgroundColor(accentColor());
  appearance.setTableViewCellTextColor(accentColor());
  appearance.setTranslucentNavigationBar(true);
  appearance.setLargeTitleStyle(HBAppearanceSettingsLargeTitleStyle::Never);
  return appearance;
}

}  // namespace quillmere
