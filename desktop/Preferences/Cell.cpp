#include "desktop/Preferences/Cell.h"

#include "desktop/Foundation/Values.h"
#include "desktop/Preferences/SpecifierBody.h"
#include "desktop/UIKit/ControllerState.h"
#include "platform/Preferences/PSListController.h"

namespace desktop {

const SpecifierBody& Cell::row() const { return *bodyAs<SpecifierBody>(specifier_); }

std::string Cell::label() const { return row().name ? textOf(row().name) : text("label"); }

std::string Cell::key() const { return text("key"); }

double Cell::height() const { return doubleValue(row().property("height")); }

bool Cell::enabled() const { return !row().property("enabled") || flag("enabled"); }

std::string Cell::text(const char* property) const { return textOf(row().property(property)); }

bool Cell::flag(const char* property) const { return boolValue(row().property(property)); }

platform::Object Cell::performGetter() const {
  if (row().get.empty()) return {};
  return perform(*row().target, row().get, specifier_);
}

void Cell::performSetterWithValue(const platform::Object& value) const {
  if (!row().set.empty()) perform(*row().target, row().set, value, specifier_);
}

}  // namespace desktop
