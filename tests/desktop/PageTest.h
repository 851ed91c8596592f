#pragma once

#include <utility>
#include <vector>

#include "desktop/Preferences/Cells.h"
#include "desktop/UIKit/ControllerState.h"
#include "desktop/UIKit/NavigationController.h"
#include "tests/desktop/PhoneTest.h"
#include "tests/desktop/TestBundle.h"

namespace desktop_tests {

using Properties = std::vector<std::pair<std::string, plist::Value>>;

/// A phone with a page of the test's own on the stack.
class PageTest : public PhoneTest {
 protected:
  PageTest() { navigation.push(desktop::makeController("TestPage")); }

  TestPage& page() { return static_cast<TestPage&>(*navigation.pages().front().controller); }

  /// A cell of that class over a row with these properties and "key", for which `stored` is held.
  template <class Cell>
  Cell cell(platform::PSCellType type, Properties properties,
            const std::optional<plist::Value>& stored = std::nullopt) {
    properties.emplace_back("key", plist::Value::string("key"));
    if (stored) page().values.insert_or_assign("key", *stored);
    return Cell(makeRow(page(), type, properties));
  }

  desktop::NavigationController navigation;
};

}  // namespace desktop_tests
