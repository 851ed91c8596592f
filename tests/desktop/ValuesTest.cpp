#include <gtest/gtest.h>
#include <limits>

#include "desktop/Exception.h"
#include "desktop/Foundation/Values.h"
#include "platform/Foundation/NSNumber.h"
#include "platform/Foundation/NSString.h"

namespace desktop_tests {
namespace {

using desktop::boolValue;
using desktop::box;
using desktop::doubleValue;
using plist::Value;

TEST(DoubleValue, IsTheValueOfANumber) {
  EXPECT_EQ(doubleValue(box(Value(true))), 1);
  EXPECT_EQ(doubleValue(box(Value(false))), 0);
  EXPECT_EQ(doubleValue(box(Value::integer(-20))), -20);
  EXPECT_EQ(doubleValue(box(Value::real(0.25F))), 0.25);
  EXPECT_EQ(doubleValue(box(Value::integer(std::numeric_limits<std::uint64_t>::max()))), 0x1p64);
}

TEST(DoubleValue, IsTheNumberThatATextBeginsWith) {
  const std::pair<const char*, double> cases[] = {
      {"75", 75},  {" \t\n75", 75}, {"+75", 75},      {"-75", -75}, {"75 points", 75}, {"7.5", 7.5},
      {".5", 0.5}, {"5.", 5},       {"1e2", 100},     {"1e", 1},    {"1,5", 1},        {"", 0},
      {"   ", 0},  {"abc", 0},      {"+", 0},         {"+-5", 0},   {"--5", 0},        {"-+5", 0},
      {"nan", 0},  {"inf", 0},      {"-infinity", 0}, {"0x10", 0},  {"-.5", -0.5},
  };
  for (const auto& [text, number] : cases) {
    EXPECT_EQ(doubleValue(box(Value::string(text))), number) << '"' << text << '"';
  }
}

TEST(DoubleValue, IsNothingForObjectsThatDoNotAnswerIt) {
  EXPECT_EQ(doubleValue(platform::Object()), 0);
  EXPECT_EQ(doubleValue(box(Value(plist::Array()))), 0);
  EXPECT_EQ(doubleValue(box(Value(plist::Dictionary()))), 0);
  EXPECT_EQ(doubleValue(box(Value::data("75"))), 0);
  EXPECT_EQ(doubleValue(box(Value::date(75))), 0);
}

TEST(BoolValue, IsTrueForAnyNumberButZero) {
  EXPECT_TRUE(boolValue(box(Value(true))));
  EXPECT_TRUE(boolValue(box(Value::integer(-1))));
  EXPECT_TRUE(boolValue(box(Value::real(0.1))));
  EXPECT_FALSE(boolValue(box(Value(false))));
  EXPECT_FALSE(boolValue(box(Value::integer(0))));
  EXPECT_FALSE(boolValue(box(Value::real(-0.0))));
}

TEST(BoolValue, GoesByHowATextBegins) {
  for (const char* text : {"YES", "yes", "Y", "true", "T", "1", "9", " \t7", "+1", "-1", "007",
                           "-007", "Yeti", "10 apples"}) {
    EXPECT_TRUE(boolValue(box(Value::string(text)))) << '"' << text << '"';
  }
  for (const char* text : {"", "NO", "no", "false", "0", "000", "+", "-", "on", "x1", "0 1", "+-1",
                           "--1", "0.5", "- 1", "+0"}) {
    EXPECT_FALSE(boolValue(box(Value::string(text)))) << '"' << text << '"';
  }
}

TEST(BoolValue, IsFalseForObjectsThatDoNotAnswerIt) {
  EXPECT_FALSE(boolValue(platform::Object()));
  EXPECT_FALSE(boolValue(box(Value(plist::Array()))));
  EXPECT_FALSE(boolValue(box(Value::data("1"))));
  EXPECT_FALSE(boolValue(box(Value::date(1))));
}

TEST(IsEqual, ComparesNumbersByValueWhateverTheirType) {
  const auto one = box(Value::integer(1));
  EXPECT_TRUE(one.isEqual(box(Value(true))));
  EXPECT_TRUE(box(Value(true)).isEqual(one));
  EXPECT_TRUE(one.isEqual(box(Value::real(1.0))));
  EXPECT_TRUE(box(Value::real(1.0F)).isEqual(one));
  EXPECT_FALSE(one.isEqual(box(Value::real(1.5))));
  EXPECT_FALSE(one.isEqual(box(Value::integer(2))));
  EXPECT_FALSE(box(Value(false)).isEqual(one));
}

TEST(IsEqual, TellsTheLargestIntegersApart) {
  const auto largest = box(Value::integer(std::numeric_limits<std::uint64_t>::max()));
  EXPECT_FALSE(largest.isEqual(box(Value::integer(-1))));
  EXPECT_FALSE(largest.isEqual(box(Value::integer(std::numeric_limits<std::uint64_t>::max() - 1))));
  EXPECT_TRUE(largest.isEqual(box(Value::integer(std::numeric_limits<std::uint64_t>::max()))));
}

TEST(IsEqual, NeverTakesATextForANumber) {
  EXPECT_FALSE(box(Value::string("1")).isEqual(box(Value::integer(1))));
  EXPECT_FALSE(box(Value::integer(1)).isEqual(box(Value::string("1"))));
  EXPECT_FALSE(box(Value::date(1)).isEqual(box(Value::integer(1))));
  EXPECT_FALSE(box(Value::uid(1)).isEqual(box(Value::integer(1))));
}

TEST(IsEqual, IsFalseForNoneOnEitherSide) {
  const auto one = box(Value::integer(1));
  EXPECT_FALSE(one.isEqual(platform::Object()));
  EXPECT_FALSE(platform::Object().isEqual(one));
  EXPECT_FALSE(platform::Object().isEqual(platform::Object()));
}

TEST(IsEqual, ComparesTextAndContainersByContent) {
  plist::Array array;
  array.append(Value::string("a"));
  EXPECT_TRUE(box(Value(array)).isEqual(box(Value(array))));
  EXPECT_TRUE(platform::NSString("a").isEqual(box(Value::string("a"))));
  EXPECT_FALSE(platform::NSString("a").isEqual(platform::NSString("A")));
  EXPECT_FALSE(box(Value(array)).isEqual(box(Value(plist::Array()))));
  EXPECT_FALSE(box(Value(array)).isEqual(platform::NSString("a")));
}

TEST(Unbox, RaisesForNone) { EXPECT_THROW(desktop::unbox(platform::Object()), desktop::Exception); }

TEST(Box, GivesNumbersTheirType) {
  EXPECT_EQ(desktop::unbox(platform::NSNumber::numberWithBool(true)), Value(true));
  EXPECT_EQ(desktop::unbox(platform::NSNumber::numberWithInt(1)), Value::integer(1));
}

}  // namespace
}  // namespace desktop_tests
