#include "desktop/Preferences/ListResource.h"

#include <algorithm>
#include <array>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Foundation/PropertyListFile.h"
#include "desktop/Foundation/Values.h"
#include "desktop/Phone.h"
#include "desktop/Preferences/SpecifierBody.h"

namespace desktop {

using platform::PSCellType;

namespace {

/// The names by which a list resource gives cell types, each at its number.
constexpr std::array<std::string_view, 15> cellNames = {
    "PSGroupCell",          "PSLinkCell",    "PSLinkListCell",    "PSListItemCell",
    "PSTitleValueCell",     "PSSliderCell",  "PSSwitchCell",      "PSStaticTextCell",
    "PSEditTextCell",       "PSSegmentCell", "PSGiantIconCell",   "PSGiantCell",
    "PSSecureEditTextCell", "PSButtonCell",  "PSEditTextViewCell"};

PSCellType cellNamed(std::string_view name) {
  const auto found = std::ranges::find(cellNames, name);
  return found == cellNames.end() ? PSCellType::PSStaticTextCell
                                  : static_cast<PSCellType>(found - cellNames.begin());
}

platform::NSArray arrayAt(const plist::Dictionary& item, std::string_view key) {
  const plist::Value* value = item.find(key);
  return value && value->array() ? box(*value).as<platform::NSArray>() : platform::NSArray();
}

platform::PSSpecifier specifierFrom(const plist::Dictionary& item,
                                    platform::PSListController& target) {
  auto specifier = make<platform::PSSpecifier, SpecifierBody>();
  SpecifierBody& row = *bodyAs<SpecifierBody>(specifier);
  row.name = platform::NSString(textAt(item, "label"));
  row.target = &target;
  row.cell = cellNamed(textAt(item, "cell"));
  row.action = textAt(item, "action");
  row.detail = platform::NSClassFromString(platform::NSString(textAt(item, "detail")));
  if (item.contains("key")) {
    row.set = textAt(item, "set", "setPreferenceValue:specifier:");
    row.get = textAt(item, "get", "readPreferenceValue:");
  }
  row.values = arrayAt(item, "validValues");
  row.titles = arrayAt(item, "validTitles");
  for (const auto& property : item) {
    row.setProperty(box(property.value()), std::string(property.key()));
  }
  if (const std::string name = textAt(item, "cellClass"); !name.empty()) {
    // In a resource the class stands as its name; a row carries the class itself.
    if (const auto cell = platform::NSClassFromString(platform::NSString(name))) {
      row.setProperty(cell, "cellClass");
    }
  }
  return specifier;
}

platform::NSArray specifiersFrom(const plist::Array& items, platform::PSListController& target) {
  std::vector<platform::Object> rows;
  for (const plist::Value& item : items) {
    if (const auto* dictionary = item.dictionary()) {
      rows.push_back(specifierFrom(*dictionary, target));
    }
  }
  return make<platform::NSArray, ArrayBody>(Elements(std::move(rows)), ArrayBody::Mutable::No);
}

}  // namespace

ListResource readListResource(const std::string& name, platform::PSListController& target) {
  const Phone& phone = Phone::current();
  const std::string path = phone.bundle + "/" + name + ".plist";
  try {
    const auto file = readPropertyList(phone.folder, path);
    const plist::Dictionary list = file ? file->entries.all() : plist::Dictionary();
    const plist::Value* items = list.find("items");
    if (items && items->array()) {
      return {textAt(list, "title"), specifiersFrom(*items->array(), target)};
    }
    phone.report(path + " has no list of rows");
  } catch (const UnreadableFile& reason) {
    phone.report(path + " cannot be read: " + reason.what());
  }
  return {};
}

}  // namespace desktop
