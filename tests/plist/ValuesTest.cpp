#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "plist/Text.h"
#include "plist/Value.h"

namespace plist {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

TEST(Value, BooleanIsNotAnInteger) {
  EXPECT_EQ(Value(true).boolean(), true);
  EXPECT_EQ(Value(true).integer(), std::nullopt);
  EXPECT_EQ(Value::integer(1).boolean(), std::nullopt);
  EXPECT_FALSE(Value(true) == Value::integer(1));
}

TEST(Value, IntegerIsNotAReal) {
  EXPECT_EQ(Value::integer(1).real(), std::nullopt);
  EXPECT_EQ(Value::real(1.0).integer(), std::nullopt);
  EXPECT_FALSE(Value::integer(1) == Value::real(1.0));
}

TEST(Value, IntegersReachFromInt64ToUint64) {
  EXPECT_EQ(Value::integer(INT64_MIN).integer(), INT64_MIN);
  EXPECT_EQ(Value::integer(INT64_MIN).unsignedInteger(), std::nullopt);
  EXPECT_EQ(Value::integer(UINT64_MAX).unsignedInteger(), UINT64_MAX);
  EXPECT_EQ(Value::integer(UINT64_MAX).integer(), std::nullopt);
  EXPECT_FALSE(Value::integer(UINT64_MAX) == Value::integer(-1));
}

TEST(Value, EqualIntegersAreEqualFromAnyWidth) {
  EXPECT_EQ(Value::integer(std::uint8_t{7}), Value::integer(std::int64_t{7}));
  EXPECT_EQ(Value::integer(std::uint64_t{7}).integer(), 7);
  EXPECT_EQ(Value::integer(short{-7}).integer(), -7);
}

TEST(Value, RealKeepsWidthAndBits) {
  EXPECT_EQ(Value::real(0.1F).singleReal(), 0.1F);
  EXPECT_EQ(Value::real(0.1F).real(), static_cast<double>(0.1F));
  EXPECT_EQ(Value::real(0.1).singleReal(), std::nullopt);
  EXPECT_FALSE(Value::real(1.0F) == Value::real(1.0));
  EXPECT_FALSE(Value::real(0.0) == Value::real(-0.0));
}

TEST(Value, NanEqualsItselfAndKeepsItsPayload) {
  const auto payload = std::bit_cast<double>(std::uint64_t{0xFFF4'0000'0000'1234});
  EXPECT_EQ(Value::real(kNan), Value::real(kNan));
  EXPECT_EQ(std::bit_cast<std::uint64_t>(*Value::real(payload).real()), 0xFFF4'0000'0000'1234);
  EXPECT_FALSE(Value::real(kNan) == Value::real(payload));
}

TEST(Value, StringIsNotData) {
  EXPECT_EQ(Value::string("ab").data(), std::nullopt);
  EXPECT_EQ(Value::data("ab").string(), std::nullopt);
  EXPECT_FALSE(Value::string("ab") == Value::data("ab"));
}

TEST(Value, StringMayBeEmptyAndHoldNul) {
  EXPECT_EQ(Value::string("").string(), "");
  EXPECT_EQ(Value::string(std::string_view("a\0b", 3)).string(), std::string_view("a\0b", 3));
}

TEST(Value, StringTakesALoneSurrogateButNotAPairOfThem) {
  EXPECT_EQ(Value::string("\xED\xA0\x80").string(), "\xED\xA0\x80");
  EXPECT_THROW(Value::string("\xED\xA0\x80\xED\xB0\x80"), std::invalid_argument);
}

TEST(Value, StringRefusesWhatIsNotText) {
  for (const char* bad : {"\x80", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xF4\x90\x80\x80",
                          "\xF0\x80\x80\x80", "\xFF", "a\xC3("}) {
    EXPECT_THROW(Value::string(bad), std::invalid_argument) << bad;
    EXPECT_FALSE(isText(bad)) << bad;
  }
}

TEST(Value, DateIsNotAReal) {
  EXPECT_EQ(Value::date(1.5).date(), 1.5);
  EXPECT_EQ(Value::date(1.5).real(), std::nullopt);
  EXPECT_FALSE(Value::date(1.5) == Value::real(1.5));
}

TEST(Value, UidIsNotAnInteger) {
  EXPECT_EQ(Value::uid(7).uid(), 7U);
  EXPECT_EQ(Value::uid(7).integer(), std::nullopt);
  EXPECT_FALSE(Value::uid(7) == Value::integer(7));
}

TEST(Value, TypeNamesWhatItIs) {
  EXPECT_EQ(Value(false).type(), Type::Boolean);
  EXPECT_EQ(Value::integer(UINT64_MAX).type(), Type::Integer);
  EXPECT_EQ(Value::real(1.0F).type(), Type::Real);
  EXPECT_EQ(Value::date(0).type(), Type::Date);
  EXPECT_EQ(Value::uid(0).type(), Type::Uid);
  EXPECT_EQ(Value::string("").type(), Type::String);
  EXPECT_EQ(Value::data("").type(), Type::Data);
  EXPECT_EQ(Value(Array()).type(), Type::Array);
  EXPECT_EQ(Value(Dictionary()).type(), Type::Dictionary);
}

TEST(Value, MovedFromIsTheBooleanFalse) {
  Value value = Value::string("text");
  const Value taken = std::move(value);
  EXPECT_EQ(taken.string(), "text");
  EXPECT_EQ(value, Value(false));  // NOLINT(bugprone-use-after-move): the promise under test
}

TEST(Value, TextOutlivesTheValueItWasCopiedFrom) {
  Value copy(false);
  {
    const Value text = Value::string("a text that is too long to be stored in place");
    copy = text;
  }
  EXPECT_EQ(copy.string(), "a text that is too long to be stored in place");
}

TEST(Value, AssigningAnElementToItsOwnContainerWorks) {
  Array array;
  array.append(Value::string("kept"));
  Value value(std::move(array));
  value = (*value.array())[0];
  EXPECT_EQ(value.string(), "kept");
}

TEST(Value, OfAnotherTypeGivesNone) {
  EXPECT_FALSE(Value(true).uid());
  EXPECT_FALSE(Value(true).unsignedInteger());
  EXPECT_FALSE(Value::integer(-1).unsignedInteger());
  EXPECT_EQ(Value::integer(5).unsignedInteger(), 5U);
  EXPECT_EQ(Value(true).dictionary(), nullptr);
}

}  // namespace
}  // namespace plist
