#include <algorithm>
#include <gtest/gtest.h>

#include "tests/model/Run.h"

namespace {

using model::Operation;
using model::Operations;

Operations numbered(unsigned count) {
  Operations operations;
  for (unsigned number = 0; number < count; ++number) operations.push_back({0, number, 0});
  return operations;
}

bool holds(const Operations& operations, unsigned number) {
  return std::ranges::any_of(operations,
                             [&](const Operation& each) { return each.first == number; });
}

std::vector<unsigned> numbersIn(const Operations& operations) {
  std::vector<unsigned> numbers;
  for (const Operation& each : operations) numbers.push_back(each.first);
  return numbers;
}

TEST(Shrink, KeepsOnlyWhatTheFailureTakesInItsOrder) {
  const auto fails = [](const Operations& operations) {
    return holds(operations, 17) && holds(operations, 63) && holds(operations, 99);
  };
  EXPECT_EQ(numbersIn(model::shrink(numbered(100), fails)), (std::vector<unsigned>{17, 63, 99}));
}

TEST(Shrink, GoesOnWhenLeavingOutOneMakesAnotherNeedless) {
  // Each number takes the next one with it: only from the end can they be taken out.
  const auto fails = [](const Operations& operations) {
    const auto numbers = numbersIn(operations);
    for (unsigned i = 0; i < numbers.size(); ++i) {
      if (numbers[i] != i) return false;
    }
    return !numbers.empty();
  };
  EXPECT_EQ(numbersIn(model::shrink(numbered(10), fails)), (std::vector<unsigned>{0}));
}

TEST(Shrink, KeepsAllWhenEachIsNeeded) {
  const auto fails = [](const Operations& operations) { return operations.size() == 5; };
  EXPECT_EQ(model::shrink(numbered(5), fails).size(), 5U);
}

}  // namespace
