#include "desktop/Preferences/Cell.h"

#include <algorithm>

#include "desktop/Foundation/Values.h"
#include "desktop/Phone.h"
#include "desktop/Preferences/SpecifierBody.h"
#include "desktop/UIKit/ControllerState.h"
#include "platform/Preferences/PSListController.h"

namespace desktop {

namespace {

/// Calls the target's method of that name, as a message would.
platform::Object call(platform::PSListController& target, const std::string& selector,
                      const platform::Object& first, const platform::Object& second = {}) {
  const auto methods = target.methods();
  const auto method = std::ranges::find(
      methods, selector, [](const platform::Method& candidate) { return candidate.selector.name; });
  if (method == methods.end()) {
    Phone::current().report(stateOf(target).className + " does not answer \"" + selector + "\"");
    return {};
  }
  return method->invoke(target, first, second);
}

}  // namespace

const SpecifierBody& Cell::row() const { return *bodyAs<SpecifierBody>(specifier_); }

std::string Cell::label() const { return row().name ? textOf(row().name) : text("label"); }

std::string Cell::key() const { return text("key"); }

double Cell::height() const { return doubleValue(row().property("height")); }

bool Cell::enabled() const { return !row().property("enabled") || flag("enabled"); }

std::string Cell::text(const char* property) const { return textOf(row().property(property)); }

bool Cell::flag(const char* property) const { return boolValue(row().property(property)); }

platform::Object Cell::performGetter() const {
  if (row().get.empty()) return {};
  return call(*row().target, row().get, specifier_);
}

void Cell::performSetterWithValue(const platform::Object& value) const {
  if (!row().set.empty()) call(*row().target, row().set, value, specifier_);
}

void Cell::perform(const std::string& selector) const { call(*row().target, selector, specifier_); }

}  // namespace desktop
