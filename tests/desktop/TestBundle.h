#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "desktop/Preferences/SpecifierBody.h"
#include "desktop/UIKit/NavigationController.h"
#include "platform/Preferences/PSListController.h"
#include "plist/Value.h"

namespace desktop_tests {

/// A page of a bundle that exists for tests: its rows are those that the test gives it, and it
/// keeps what its rows store. The class goes by "TestPage"; "RefusingPage" cannot be initialised.
class TestPage : public platform::PSListController {
 public:
  platform::NSArray specifiers() override { return rows; }
  std::span<const platform::Method> methods() const override;

  platform::Object readValue(const platform::PSSpecifier& row);
  void storeValue(const platform::Object& value, const platform::PSSpecifier& row);
  void act(const platform::PSSpecifier& row);

  /// The rows of that list resource, which become the page's.
  void load(const char* resource);

  platform::NSArray rows;
  /// What `readValue` answers, by key.
  std::map<std::string, plist::Value> values;
  /// What was stored, in order.
  std::vector<std::pair<std::string, plist::Value>> written;
  /// The labels of the rows that acted.
  std::vector<std::string> acted;
};

/// A row of the page with these properties; it reads and stores when it has a "key".
platform::PSSpecifier makeRow(TestPage& page, platform::PSCellType cell,
                              const std::vector<std::pair<std::string, plist::Value>>& properties);

}  // namespace desktop_tests
