#include "prefs/Rows.h"

#include "platform/Foundation/NSNumber.h"

namespace quillmere {

using namespace platform;

namespace {

std::string footer(const std::string& defaultText) { return "• Default = " + defaultText; }

PSSpecifier makeRow(const Group& group, PSListController&) {
  return groupRow(group.name, group.footer);
}

PSSpecifier makeRow(const Switch& row, PSListController& page) {
  PSSpecifier specifier = valueRow(row.label, PSCellType::PSSwitchCell, page);
  specifier.setProperty(NSString(domain), "defaults");
  specifier.setProperty(NSString(row.setting.key), "key");
  specifier.setProperty(NSNumber::numberWithBool(row.setting.defaultValue), "default");
  return specifier;
}

PSSpecifier makeRow(const Slider& row, PSListController& page) {
  PSSpecifier specifier = valueRow(row.label, PSCellType::PSSliderCell, page);
  specifier.setProperty(NSNumber::numberWithInt(row.max), "max");
  specifier.setProperty(NSNumber::numberWithInt(row.min), "min");
  specifier.setProperty(NSNumber::numberWithBool(true), "showValue");
  specifier.setProperty(NSNumber::numberWithBool(true), "isSegmented");
  specifier.setProperty(NSNumber::numberWithInt(row.max - row.min), "segmentCount");
  specifier.setProperty(NSString(domain), "defaults");
  specifier.setProperty(NSNumber::numberWithInt(row.setting.defaultValue), "default");
  specifier.setProperty(NSString(row.setting.key), "key");
  return specifier;
}

}  // namespace

std::string defaultFooter(const Setting<bool>& setting) {
  return footer(setting.defaultValue ? "YES" : "NO");
}

std::string defaultFooter(const Setting<int>& setting) {
  return footer(std::to_string(setting.defaultValue));
}

PSSpecifier valueRow(const NSString& label, PSCellType cell, PSListController& page) {
  return PSSpecifier::preferenceSpecifierNamed(label, page, writeSelector, readSelector, Class(),
                                               cell, Class());
}

PSSpecifier groupRow(const char* name, const std::string& footer) {
  PSSpecifier group = PSSpecifier::groupSpecifierWithName(name);
  if (!footer.empty()) group.setProperty(NSString(footer), "footerText");
  return group;
}

NSMutableArray makeRows(std::initializer_list<Row> table, PSListController& page) {
  NSMutableArray rows = NSMutableArray::array();
  for (const Row& row : table) {
    rows.addObject(std::visit([&](const auto& line) { return makeRow(line, page); }, row));
  }
  return rows;
}

}  // namespace quillmere
