#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/contract/Lines.h"
#include "tests/contract/Rows.h"
#include "tests/support/Driver.h"

namespace {

using support::between;
using support::Driver;
using support::Lines;
using support::RowFacts;
using testing::ElementsAreArray;

std::string creation(const RowFacts& row, const std::string& page) {
  if (row.cell == 0) return "PSSpecifier groupSpecifierWithName:" + row.name;
  return "PSSpecifier preferenceSpecifierNamed:" + row.name + " target:" + page +
         " set:" + row.set + " get:" + row.get + " detail:nil cell:" + std::to_string(row.cell) +
         " edit:nil";
}

/// A row made and its properties set, in order.
Lines making(const RowFacts& row, const std::string& page) {
  Lines lines = {creation(row, page)};
  for (const auto& [key, value] : row.properties) {
    lines.push_back("PSSpecifier setProperty:" + value + " forKey:\"" + key + "\"");
  }
  return lines;
}

/// The rows made and added one after the other, then an immutable copy taken.
Lines building(const std::vector<RowFacts>& rows, const std::string& page) {
  Lines lines = {"NSMutableArray array"};
  for (const RowFacts& row : rows) {
    const Lines made = making(row, page);
    lines.insert(lines.end(), made.begin(), made.end());
    lines.push_back("NSMutableArray addObject:<PSSpecifier " + row.name + ">");
  }
  lines.push_back("NSMutableArray copy");
  return lines;
}

TEST(PageBuilding, ClockAndQuickActionsAddTheirRowsInOrder) {
  const std::pair<const char*, const char*> pages[] = {{"Clock", "QMClockVC"},
                                                       {"Quick Actions", "QMQuickActionsVC"}};
  for (const auto& [label, page] : pages) {
    Driver phone;
    phone.tap(label);
    const Lines journal = phone.journal();
    EXPECT_THAT(between(journal, "NSMutableArray array", "NSMutableArray copy"),
                ElementsAreArray(building(phone.rows(), page)));
  }
}

TEST(PageBuilding, ColorAddsItsRowsInOrder) {
  Driver phone;
  phone.tap("Color");
  const Lines journal = phone.journal();
  Lines expected = building(phone.rows(), "QMColorVC");
  const auto after = [&](const std::string& line) { return std::ranges::find(expected, line) + 1; };
  // The values follow the mode's domain; the cell's class is looked up before it is set.
  expected.insert(std::find(after(creation(phone.rows()[1], "QMColorVC")), expected.end(),
                            "PSSpecifier setProperty:\"com.orvalen.quillmere\" "
                            "forKey:\"defaults\"") +
                      1,
                  "PSSpecifier setValues:(1, 2) titles:(\"Default\", \"Custom Color\")");
  expected.insert(after(creation(phone.rows()[3], "QMColorVC")),
                  "objc NSClassFromString:\"CSColorDisplayCell\"");
  EXPECT_THAT(between(journal, "NSMutableArray array", "NSMutableArray copy"),
              ElementsAreArray(expected));
}

TEST(PageBuilding, RootInsertsGroupAndCreditsIntoACopyOfTheResource) {
  Driver phone;
  phone.reopen();
  const Lines journal = phone.journal();
  const auto rows = phone.rows();
  Lines expected = {"NSArray mutableCopy"};
  for (const RowFacts& row : {rows[11], rows[12]}) {
    const Lines made = making(row, "QMRoot");
    expected.insert(expected.end(), made.begin(), made.end());
    expected.push_back("NSMutableArray insertObject:<PSSpecifier " + row.name +
                       "> atIndex:" + (row.cell == 0 ? "11" : "12"));
  }
  expected.push_back("NSMutableArray copy");
  const auto creditsMade = std::ranges::find(expected, creation(rows[12], "QMRoot"));
  expected.insert(creditsMade + 1, "objc NSClassFromString:\"OrvalenTripleCell\"");
  EXPECT_THAT(between(journal, "NSArray mutableCopy", "NSMutableArray copy"),
              ElementsAreArray(expected));
}

TEST(PageBuilding, SecondRequestAsksThePlatformForNothing) {
  for (const char* page : {"", "Clock", "Quick Actions", "Color"}) {
    Driver phone;
    if (*page) phone.tap(page);
    phone.forget();
    phone.rows();
    EXPECT_THAT(phone.journal(), testing::IsEmpty()) << page;
  }
}

}  // namespace
