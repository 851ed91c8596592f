#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "tests/desktop/PageTest.h"

namespace desktop_tests {
namespace {

using desktop::SliderCell;
using plist::Value;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

Properties between(int min, int max) {
  return {{"min", Value::integer(min)}, {"max", Value::integer(max)}};
}

Properties inSteps(int min, int max, int count) {
  Properties properties = between(min, max);
  properties.emplace_back("isSegmented", Value(true));
  properties.emplace_back("segmentCount", Value::integer(count));
  return properties;
}

class SliderCellTest : public PageTest {
 protected:
  SliderCell slider(Properties properties, const std::optional<Value>& stored = std::nullopt) {
    return cell<SliderCell>(platform::PSCellType::PSSliderCell, std::move(properties), stored);
  }
  const Value& lastWritten() { return page().written.back().second; }
};

TEST_F(SliderCellTest, ShowsTheStoredNumber) {
  EXPECT_EQ(slider(between(1, 200), Value::integer(80)).value(), 80);
  EXPECT_EQ(slider(between(1, 200), Value::real(80.5F)).value(), 80.5);
  EXPECT_EQ(slider(between(1, 200), Value::string("80.5 pt")).value(), 80.5);
  EXPECT_EQ(slider(between(0, 200), Value(true)).value(), 1);
}

TEST_F(SliderCellTest, ShowsTheNearestEndForWhatIsOutside) {
  EXPECT_EQ(slider(between(1, 200), Value::integer(1000)).value(), 200);
  EXPECT_EQ(slider(between(1, 200), Value::integer(-5)).value(), 1);
  EXPECT_EQ(slider(between(1, 200), Value::real(infinity)).value(), 200);
}

TEST_F(SliderCellTest, ShowsItsLeastForWhatIsNoNumber) {
  EXPECT_EQ(slider(between(1, 200), Value::real(nan)).value(), 1);
  EXPECT_EQ(slider(between(1, 200), Value::string("big")).value(), 1);
  EXPECT_EQ(slider(between(1, 200), Value(plist::Array())).value(), 1);
  EXPECT_EQ(slider(between(-100, 100), Value::data("x")).value(), 0);
}

TEST_F(SliderCellTest, GoesFromNoughtToOneWithoutBounds) {
  const SliderCell bare = slider({});
  EXPECT_EQ(bare.min(), 0);
  EXPECT_EQ(bare.max(), 1);
  EXPECT_EQ(bare.step(), std::nullopt);
  EXPECT_FALSE(bare.showsValue());
}

TEST_F(SliderCellTest, HasNoRangeWhenTheBoundsAreTheWrongWayRound) {
  SliderCell cell = slider(between(200, 1), Value::integer(50));
  EXPECT_EQ(cell.min(), 200);
  EXPECT_EQ(cell.max(), 200);
  EXPECT_EQ(cell.value(), 200);
  EXPECT_TRUE(cell.slide(5));
  EXPECT_EQ(cell.value(), 200);
}

TEST_F(SliderCellTest, StopsAtTheEndsOfItsSegments) {
  SliderCell cell = slider(inSteps(-100, 100, 200));
  EXPECT_EQ(cell.step(), 1);
  const std::pair<double, double> cases[] = {{-20.4, -20}, {-20.6, -21}, {0.2, 0},
                                             {99.9, 100},  {100.4, 100}, {-1e308, -100}};
  for (const auto& [slid, stop] : cases) {
    EXPECT_TRUE(cell.slide(slid));
    EXPECT_EQ(cell.value(), stop) << slid;
  }
}

TEST_F(SliderCellTest, StopsBetweenWholeNumbersWhereItsSegmentsEndThere) {
  SliderCell cell = slider(inSteps(0, 1, 4));
  EXPECT_TRUE(cell.slide(0.3));
  EXPECT_EQ(cell.value(), 0.25);
}

TEST_F(SliderCellTest, StopsAnywhereWithoutSegments) {
  for (const int count : {0, -3}) EXPECT_EQ(slider(inSteps(0, 10, count)).step(), std::nullopt);
  SliderCell cell = slider(between(0, 10));
  EXPECT_TRUE(cell.slide(2.625));
  EXPECT_EQ(cell.value(), 2.625);
}

TEST_F(SliderCellTest, StoresARealOfSingleWidth) {
  SliderCell cell = slider(inSteps(1, 200, 199));
  EXPECT_TRUE(cell.slide(80));
  EXPECT_EQ(lastWritten(), Value::real(80.0F));
}

TEST_F(SliderCellTest, ShowsWhatItStored) {
  SliderCell cell = slider(between(0, 1));
  EXPECT_TRUE(cell.slide(0.1));
  EXPECT_EQ(cell.value(), static_cast<double>(0.1F));
  EXPECT_EQ(lastWritten(), Value::real(0.1F));
}

TEST_F(SliderCellTest, RefusesToSlideToWhatIsNoNumber) {
  SliderCell cell = slider(between(1, 200), Value::integer(80));
  EXPECT_FALSE(cell.slide(nan));
  EXPECT_EQ(cell.value(), 80);
  EXPECT_TRUE(page().written.empty());
}

TEST_F(SliderCellTest, SlidesToItsEndsForInfinities) {
  SliderCell cell = slider(inSteps(1, 200, 199));
  EXPECT_TRUE(cell.slide(infinity));
  EXPECT_EQ(cell.value(), 200);
  EXPECT_TRUE(cell.slide(-infinity));
  EXPECT_EQ(cell.value(), 1);
}

TEST_F(SliderCellTest, TakesATypedDecimalNumber) {
  const std::pair<const char*, double> cases[] = {
      {"80", 80}, {" 80 ", 80}, {"\t80", 80}, {"+5", 5},    {"-20", -20},  {"-0", 0},
      {".6", 1},  {"5.", 5},    {"007", 7},   {"80.4", 80}, {"1000", 100}, {"-1000", -100},
  };
  for (const auto& [text, value] : cases) {
    SliderCell cell = slider(inSteps(-100, 100, 200), Value::integer(50));
    EXPECT_TRUE(cell.type(text)) << '"' << text << '"';
    EXPECT_EQ(lastWritten(), Value::real(static_cast<float>(value))) << '"' << text << '"';
  }
}

TEST_F(SliderCellTest, RefusesTypedTextThatIsNoDecimalNumber) {
  for (const char* text :
       {"",         " ",   "abc", "12abc", "1e3",  "1E3", "1,5",  "1 000", "+",
        "-",        ".",   "+-5", "--5",   "-+5",  "++5", "0x10", "inf",   "-inf",
        "infinity", "nan", "NaN", "½",     "８０", "8\n", "1.2.3"}) {
    SliderCell cell = slider(inSteps(-100, 100, 200), Value::integer(50));
    EXPECT_FALSE(cell.type(text)) << '"' << text << '"';
    EXPECT_EQ(cell.value(), 50);
  }
  EXPECT_TRUE(page().written.empty());
}

TEST_F(SliderCellTest, TakesAsManyDigitsAsSomebodyTypes) {
  SliderCell cell = slider(inSteps(-100, 100, 200));
  EXPECT_TRUE(cell.type("0." + std::string(20, '9')));
  EXPECT_EQ(cell.value(), 1);
}

TEST_F(SliderCellTest, ShowsItsValueWhenTheRowSaysSo) {
  EXPECT_TRUE(slider({{"showValue", Value(true)}}).showsValue());
  EXPECT_TRUE(slider({{"showValue", Value::integer(1)}}).showsValue());
}

TEST_F(SliderCellTest, HasFiniteBoundsWhateverTheRowSays) {
  for (const double odd : {nan, infinity, -infinity}) {
    SliderCell cell =
        slider({{"min", Value::real(odd)}, {"max", Value::real(odd)}}, Value::integer(3));
    EXPECT_TRUE(std::isfinite(cell.min()) && std::isfinite(cell.max())) << odd;
    EXPECT_TRUE(cell.min() <= cell.value() && cell.value() <= cell.max()) << odd;
  }
}

}  // namespace
}  // namespace desktop_tests
