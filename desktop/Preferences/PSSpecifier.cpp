#include "platform/Preferences/PSSpecifier.h"

#include <algorithm>

#include "desktop/Message.h"
#include "desktop/Preferences/SpecifierBody.h"
#include "desktop/UIKit/ControllerState.h"
#include "platform/Preferences/PSListController.h"

namespace desktop {

using Property = std::pair<std::string, platform::Object>;

std::string SpecifierBody::description() const {
  return "<PSSpecifier " + desktop::debugDescription(name) + ">";
}

platform::Object SpecifierBody::property(std::string_view key) const {
  const auto found = std::ranges::find(properties, key, &Property::first);
  return found == properties.end() ? platform::Object() : found->second;
}

void SpecifierBody::setProperty(const platform::Object& value, const std::string& key) {
  if (!value) throw invalidArgument("property " + key + " is nil");
  const auto found = std::ranges::find(properties, key, &Property::first);
  if (found == properties.end()) {
    properties.emplace_back(key, value);
  } else {
    found->second = value;
  }
}

}  // namespace desktop

namespace platform {

using desktop::send;
using desktop::SpecifierBody;

PSSpecifier PSSpecifier::preferenceSpecifierNamed(const NSString& name, PSListController& target,
                                                  SEL set, SEL get, const Class& detail,
                                                  PSCellType cell, const Class& edit) {
  return desktop::sendClass("PSSpecifier",
                            "preferenceSpecifierNamed:target:set:get:detail:cell:edit:",
                            {name, std::string_view(desktop::stateOf(target).className), set.name,
                             get.name, detail, static_cast<double>(cell), edit},
                            [&] {
                              PSSpecifier row = desktop::make<PSSpecifier, SpecifierBody>();
                              auto& body = *desktop::bodyAs<SpecifierBody>(row);
                              body.name = name;
                              body.target = &target;
                              body.set = set.name;
                              body.get = get.name;
                              body.detail = detail;
                              body.cell = cell;
                              return row;
                            });
}

PSSpecifier PSSpecifier::groupSpecifierWithName(const NSString& name) {
  return desktop::sendClass("PSSpecifier", "groupSpecifierWithName:", {name}, [&] {
    PSSpecifier group = desktop::make<PSSpecifier, SpecifierBody>();
    desktop::bodyAs<SpecifierBody>(group)->name = name;
    return group;
  });
}

void PSSpecifier::setProperty(const Object& value, const NSString& key) {
  send<SpecifierBody>(*this, "setProperty:forKey:", {value, key},
                      [&](SpecifierBody& self) { self.setProperty(value, key.UTF8String()); });
}

Object PSSpecifier::propertyForKey(const NSString& key) const {
  return send<SpecifierBody>(*this, "propertyForKey:", {key},
                             [&](SpecifierBody& self) { return self.property(key.UTF8String()); });
}

void PSSpecifier::setValues(const NSArray& values, const NSArray& titles) {
  send<SpecifierBody>(*this, "setValues:titles:", {values, titles}, [&](SpecifierBody& self) {
    self.values = values;
    self.titles = titles;
  });
}

}  // namespace platform
