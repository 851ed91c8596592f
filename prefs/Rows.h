#pragma once

#include <initializer_list>
#include <string>
#include <variant>

#include "platform/Foundation/NSArray.h"
#include "platform/Preferences/PSListController.h"
#include "platform/Preferences/PSSpecifier.h"
#include "prefs/Quillmere.h"

namespace quillmere {

/// The selectors by which every value row reads and writes.
inline constexpr const char* readSelector = "readPreferenceValue:";
inline constexpr const char* writeSelector = "setPreferenceValue:specifier:";

/// The footer of a page whose changes show only after a respring.
inline constexpr const char* respringFooter = "• Changes require a respring to be applied";

/// A group of rows; an empty footer is none.
struct Group {
  const char* name;
  std::string footer;
};

/// A switch.
struct Switch {
  const char* label;
  Setting<bool> setting;
};

/// A slider that stops at the whole numbers from `min` to `max`.
struct Slider {
  const char* label;
  Setting<int> setting;
  int min;
  int max;
};

/// One line of a page's table of rows.
using Row = std::variant<Group, Switch, Slider>;

/// "• Default = YES", "• Default = 75": the footer of the group that the setting's row stands in.
std::string defaultFooter(const Setting<bool>& setting);
std::string defaultFooter(const Setting<int>& setting);

/// A value row of the page: it reads and writes through the page's two operations.
platform::PSSpecifier valueRow(const platform::NSString& label, platform::PSCellType cell,
                               platform::PSListController& page);

/// A group row; an empty footer is none.
platform::PSSpecifier groupRow(const char* name, const std::string& footer = {});

/// A new list with one specifier for each line of the table.
platform::NSMutableArray makeRows(std::initializer_list<Row> table,
                                  platform::PSListController& page);

}  // namespace quillmere
