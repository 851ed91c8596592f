#include "platform/Cephei/HBAppearanceSettings.h"

#include "desktop/Cephei/AppearanceBody.h"
#include "desktop/Message.h"

namespace platform {

using desktop::AppearanceBody;
using desktop::send;

namespace {

void setColor(const HBAppearanceSettings& settings, std::string_view selector,
              UIColor AppearanceBody::*part, const UIColor& color) {
  send<AppearanceBody>(settings, selector, {color},
                       [&](AppearanceBody& self) { self.*part = color; });
}

}  // namespace

HBAppearanceSettings HBAppearanceSettings::init() {
  return desktop::sendClass("HBAppearanceSettings", "init", {},
                            [] { return desktop::make<HBAppearanceSettings, AppearanceBody>(); });
}

void HBAppearanceSettings::setTintColor(const UIColor& color) {
  setColor(*this, "setTintColor:", &AppearanceBody::tint, color);
}

void HBAppearanceSettings::setNavigationBarTitleColor(const UIColor& color) {
  setColor(*this, "setNavigationBarTitleColor:", &AppearanceBody::navigationBarTitle, color);
}

void HBAppearanceSettings::setNavigationBarTintColor(const UIColor& color) {
  setColor(*this, "setNavigationBarTintColor:", &AppearanceBody::navigationBarTint, color);
}

void HBAppearanceSettings::setTableViewCellSeparatorColor(const UIColor& color) {
  setColor(*this, "setTableViewCellSeparatorColor:", &AppearanceBody::cellSeparator, color);
}

void HBAppearanceSettings::setNavigationBarBackgroundColor(const UIColor& color) {
  setColor(*this, "setNavigationBarBackgroundColor:", &AppearanceBody::navigationBarBackground,
           color);
}

void HBAppearanceSettings::setTableViewCellTextColor(const UIColor& color) {
  setColor(*this, "setTableViewCellTextColor:", &AppearanceBody::cellText, color);
}

void HBAppearanceSettings::setTranslucentNavigationBar(bool translucent) {
  send<AppearanceBody>(*this, "setTranslucentNavigationBar:", {translucent},
                       [&](AppearanceBody& self) { self.translucentNavigationBar = translucent; });
}

void HBAppearanceSettings::setLargeTitleStyle(HBAppearanceSettingsLargeTitleStyle style) {
  const auto number = static_cast<unsigned long>(style);
  send<AppearanceBody>(*this, "setLargeTitleStyle:", {static_cast<double>(number)},
                       [](AppearanceBody&) {});
}

}  // namespace platform
