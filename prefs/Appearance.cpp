#include "prefs/Appearance.h"

namespace quillmere {

using namespace platform;

UIColor accentColor() {
  return UIColor::colorWithRed(246.0 / 255.0, 146.0 / 255.0, 64.0 / 255.0, 1.0);
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
