#include <gtest/gtest.h>

#include "desktop/Foundation/Values.h"
#include "desktop/Preferences/SpecifierBody.h"
#include "tests/desktop/PageTest.h"

namespace desktop_tests {
namespace {

using desktop::SegmentCell;
using desktop::SwitchCell;
using plist::Value;

class SwitchCellTest : public PageTest {
 protected:
  SwitchCell switchCell(const std::optional<Value>& stored) {
    page().values.clear();
    return cell<SwitchCell>(platform::PSCellType::PSSwitchCell, {}, stored);
  }
};

TEST_F(SwitchCellTest, ShowsStoredValuesAsThePlatformTakesThem) {
  for (const Value& on : {Value(true), Value::integer(1), Value::integer(-1), Value::real(0.5),
                          Value::string("YES"), Value::string("1"), Value::string("true")}) {
    EXPECT_TRUE(switchCell(on).isOn());
  }
  for (const Value& off :
       {Value(false), Value::integer(0), Value::real(0.0), Value::string("NO"), Value::string(""),
        Value(plist::Array()), Value(plist::Dictionary()), Value::data("1"), Value::date(1)}) {
    EXPECT_FALSE(switchCell(off).isOn());
  }
}

TEST_F(SwitchCellTest, IsOffWithoutAValue) { EXPECT_FALSE(switchCell(std::nullopt).isOn()); }

TEST_F(SwitchCellTest, StoresABoolean) {
  SwitchCell cell = switchCell(Value(false));
  cell.toggle(true);
  cell.toggle(false);
  EXPECT_EQ(page().written, (std::vector<std::pair<std::string, Value>>{{"key", Value(true)},
                                                                        {"key", Value(false)}}));
}

TEST_F(SwitchCellTest, ShowsWhatTheUserDidAndAsksNoMore) {
  SwitchCell cell = switchCell(Value(false));
  cell.toggle(true);
  EXPECT_TRUE(cell.isOn());
}

class SegmentCellTest : public PageTest {
 protected:
  /// Offers the numbers 1 and 2 as "Default" and "Custom".
  SegmentCell segment(const std::optional<Value>& stored) {
    page().values.clear();
    if (stored) page().values.insert_or_assign("key", *stored);
    auto row =
        makeRow(page(), platform::PSCellType::PSSegmentCell, {{"key", Value::string("key")}});
    plist::Array values;
    plist::Array titles;
    values.append(Value::integer(1));
    values.append(Value::integer(2));
    titles.append(Value::string("Default"));
    titles.append(Value::string("Custom"));
    row.setValues(desktop::box(Value(values)).as<platform::NSArray>(),
                  desktop::box(Value(titles)).as<platform::NSArray>());
    return SegmentCell(row);
  }
};

TEST_F(SegmentCellTest, ShowsTheStoredValueByItsTitle) {
  EXPECT_EQ(segment(Value::integer(2)).selected(), 1U);
  EXPECT_EQ(segment(Value::integer(2)).titles(), (std::vector<std::string>{"Default", "Custom"}));
}

TEST_F(SegmentCellTest, ComparesNumbersByValue) {
  EXPECT_EQ(segment(Value::real(2.0)).selected(), 1U);
  EXPECT_EQ(segment(Value(true)).selected(), 0U);
}

TEST_F(SegmentCellTest, ShowsNoneForAnUnknownValue) {
  EXPECT_EQ(segment(Value::integer(3)).selected(), std::nullopt);
  EXPECT_EQ(segment(Value::string("2")).selected(), std::nullopt);
  EXPECT_EQ(segment(Value(plist::Array())).selected(), std::nullopt);
  EXPECT_EQ(segment(std::nullopt).selected(), std::nullopt);
}

TEST_F(SegmentCellTest, StoresTheValueThatTheTitleStandsFor) {
  SegmentCell cell = segment(Value::integer(2));
  EXPECT_TRUE(cell.select(0));
  EXPECT_EQ(cell.selected(), 0U);
  EXPECT_EQ(page().written.back().second, Value::integer(1));
}

TEST_F(SegmentCellTest, RefusesASegmentThatIsNotThere) {
  SegmentCell cell = segment(Value::integer(2));
  EXPECT_FALSE(cell.select(2));
  EXPECT_FALSE(cell.select(static_cast<std::size_t>(-1)));
  EXPECT_EQ(cell.selected(), 1U);
  EXPECT_TRUE(page().written.empty());
}

TEST_F(SegmentCellTest, WithoutValuesShowsAndTakesNothing) {
  auto bare = cell<SegmentCell>(platform::PSCellType::PSSegmentCell, {}, Value::integer(1));
  EXPECT_EQ(bare.titles(), std::vector<std::string>{});
  EXPECT_EQ(bare.selected(), std::nullopt);
  EXPECT_FALSE(bare.select(0));
}

}  // namespace
}  // namespace desktop_tests
