#include <gmock/gmock.h>

#include "tests/contract/OpenedList.h"

namespace {

/// More names than anybody has: what compared each with each would not end before the test is
/// given up.
class LongAnimationList : public OpenedList {
 protected:
  static constexpr std::size_t count = 100'000;

  static Names numbered(const std::string& start, std::size_t names, const std::string& end) {
    Names all(names);
    for (std::size_t i = 0; i < names; ++i) all[i] = start + std::to_string(i) + end;
    return all;
  }
};

TEST_F(LongAnimationList, IsOpenedChangedAndStored) {
  const Names stored = numbered("Name ", count, "");
  open(numbered("Name ", count / 10, ".lottie"), stored);
  phone.drag(0, 0, 0, count - 1);
  phone.remove(count / 2);
  EXPECT_EQ(phone.cell({0, count - 2}).text, "Name 0");
  EXPECT_EQ(disabled().size(), 1U);
  EXPECT_EQ(phone.file().find(key)->array()->size(), count - 1);
}

TEST_F(LongAnimationList, IsShownForALargeFolder) {
  open(numbered("Name ", count / 5, ".lottie"), numbered("Other ", count, ""));
  EXPECT_EQ(phone.answersFor({1, 0}).rows, count / 5);
  phone.insert(count / 5 - 1);
  EXPECT_EQ(phone.answersFor({0, 0}).rows, count + 1);
}

TEST_F(LongAnimationList, ThatHoldsOnlyNumbersIsShownAsEmpty) {
  plist::Array numbers;
  for (std::size_t i = 0; i < count; ++i) {
    numbers.append(plist::Value::integer(static_cast<std::int64_t>(i)));
  }
  open({"Rain.lottie"}, plist::Value(numbers));
  EXPECT_EQ(enabled(), Names{});
  EXPECT_EQ(disabled(), Names{"Rain"});
}

}  // namespace
