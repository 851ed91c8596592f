#include <gtest/gtest.h>
#include <utility>
#include <vector>

#include "plist/Value.h"

namespace plist {
namespace {

/// A value of each representation.
std::vector<Value> oneOfEach() {
  Array array;
  array.append(Value::integer(1));
  Dictionary dictionary;
  dictionary.set("a", Value::string("b"));
  return {Value(true),        Value::integer(-7),  Value::integer(UINT64_MAX),
          Value::real(1.5F),  Value::real(1.5),    Value::date(1.5),
          Value::uid(7),      Value::string("ab"), Value::data("ab"),
          Value(array),       Value(dictionary),   Value(Array()),
          Value(Dictionary())};
}

/// Stands between a value and itself, so that no compiler warns of what the tests are about.
Value& same(Value& value) { return value; }

TEST(ValueMove, ToItselfKeepsTheValue) {
  for (const Value& expected : oneOfEach()) {
    Value value = expected;
    value = std::move(same(value));
    EXPECT_EQ(value, expected);
  }
}

TEST(ValueMove, CopyToItselfKeepsTheValue) {
  for (const Value& expected : oneOfEach()) {
    Value value = expected;
    value = same(value);
    EXPECT_EQ(value, expected);
  }
}

TEST(ValueMove, BetweenAnyTwoLeavesFalseBehind) {
  for (const Value& before : oneOfEach()) {
    for (const Value& expected : oneOfEach()) {
      Value from = expected;
      Value to = before;
      to = std::move(from);
      EXPECT_EQ(to, expected);
      EXPECT_EQ(from, Value(false));  // NOLINT(bugprone-use-after-move): promised
    }
  }
}

TEST(ValueMove, StringSurvivesItsOnlyOwnerBeingMovedToItself) {
  Value value = Value::string("only one owner");
  value = std::move(same(value));
  EXPECT_EQ(value.string(), "only one owner");
}

TEST(ValueMove, ElementReplacesTheArrayThatHoldsIt) {
  for (const Value& expected : oneOfEach()) {
    Array array;
    array.append(expected);
    Value value(std::move(array));
    value = std::move(const_cast<Value&>((*value.array())[0]));
    EXPECT_EQ(value, expected);
  }
}

TEST(ValueMove, CopyOfAnElementReplacesTheContainerThatHoldsIt) {
  for (const Value& expected : oneOfEach()) {
    Dictionary dictionary;
    dictionary.set("a", expected);
    Value value(std::move(dictionary));
    value = *std::as_const(value).dictionary()->find("a");
    EXPECT_EQ(value, expected);
  }
}

}  // namespace
}  // namespace plist
