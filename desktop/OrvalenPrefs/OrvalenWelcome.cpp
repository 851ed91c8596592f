#include "platform/OrvalenPrefs/OrvalenWelcome.h"

#include "desktop/Message.h"
#include "desktop/OrvalenPrefs/WelcomeBody.h"

namespace desktop {

void WelcomeBody::rememberSeen() const {
  Phone::current().preferences.set(packageId.UTF8String(), "showedWelcomeVC", plist::Value(true));
}

}  // namespace desktop

namespace platform {

using desktop::WelcomeBody;

namespace {

/// Sets the part that `part` finds in a welcome screen.
template <class Value, class Part>
void set(const OrvalenWelcome& welcome, std::string_view selector, const Value& value, Part part) {
  desktop::send<WelcomeBody>(welcome, selector, {value},
                             [&](WelcomeBody& self) { std::invoke(part, self) = value; });
}

auto itemTitle(std::size_t item) {
  return [item](WelcomeBody& self) -> NSString& { return self.items[item].title; };
}

auto itemDescription(std::size_t item) {
  return [item](WelcomeBody& self) -> NSString& { return self.items[item].description; };
}

}  // namespace

OrvalenWelcome OrvalenWelcome::init() {
  if (desktop::Phone::current().missingClasses.contains("OrvalenWelcome")) return {};
  return desktop::sendClass("OrvalenWelcome", "new", {},
                            [] { return desktop::make<OrvalenWelcome, WelcomeBody>(); });
}

void OrvalenWelcome::setSubtitleText(const NSString& text) {
  set(*this, "setSubtitleText:", text, &WelcomeBody::subtitle);
}
void OrvalenWelcome::setItem_one_title(const NSString& text) {
  set(*this, "setItem_one_title:", text, itemTitle(0));
}
void OrvalenWelcome::setItem_one_description(const NSString& text) {
  set(*this, "setItem_one_description:", text, itemDescription(0));
}
void OrvalenWelcome::setItem_two_title(const NSString& text) {
  set(*this, "setItem_two_title:", text, itemTitle(1));
}
void OrvalenWelcome::setItem_two_description(const NSString& text) {
  set(*this, "setItem_two_description:", text, itemDescription(1));
}
void OrvalenWelcome::setItem_three_title(const NSString& text) {
  set(*this, "setItem_three_title:", text, itemTitle(2));
}
void OrvalenWelcome::setItem_three_description(const NSString& text) {
  set(*this, "setItem_three_description:", text, itemDescription(2));
}
void OrvalenWelcome::setButtonTitle(const NSString& text) {
  set(*this, "setButtonTitle:", text, &WelcomeBody::buttonTitle);
}
void OrvalenWelcome::setButtonCaption(const NSString& text) {
  set(*this, "setButtonCaption:", text, &WelcomeBody::buttonCaption);
}
void OrvalenWelcome::setTitleText(const NSString& text) {
  set(*this, "setTitleText:", text, &WelcomeBody::title);
}
void OrvalenWelcome::setPackage_ID(const NSString& identifier) {
  set(*this, "setPackage_ID:", identifier, &WelcomeBody::packageId);
}
void OrvalenWelcome::setBundle_Name(const NSString& path) {
  set(*this, "setBundle_Name:", path, &WelcomeBody::bundlePath);
}
void OrvalenWelcome::setTintColor(const UIColor& color) {
  set(*this, "setTintColor:", color, &WelcomeBody::tint);
}

}  // namespace platform
