#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

#include "tests/support/Driver.h"

namespace {

using support::Driver;
using testing::ElementsAre;

/// How much is to be seen of the text and of the icon.
using Alphas = std::pair<double, double>;
constexpr Alphas text{1, 0};
constexpr Alphas icon{0, 1};

struct ScrollingTitle : testing::Test {
  Driver phone;
};

TEST_F(ScrollingTitle, ShowsTheTextAtFirst) { EXPECT_EQ(phone.titleAlphas(), text); }

TEST_F(ScrollingTitle, ShowsTheIconOnlyBeyondSixtyPoints) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (const auto& [offset, shown] : {std::pair(60.000001, icon),
                                      {60.0, text},
                                      {61.0, icon},
                                      {59.999999, text},
                                      {100000.0, icon},
                                      {0.0, text},
                                      {infinity, icon},
                                      {-infinity, text}}) {
    phone.scroll(offset);
    EXPECT_EQ(phone.titleAlphas(), shown) << offset;
  }
}

TEST_F(ScrollingTitle, ShowsTheTextWhileThePageBouncesAtItsTop) {
  phone.scroll(100);
  phone.scroll(-80);
  EXPECT_EQ(phone.titleAlphas(), text);
}

TEST_F(ScrollingTitle, TakesAnOffsetThatIsNoNumberForTheTop) {
  phone.scroll(100);
  phone.scroll(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(phone.titleAlphas(), text);
}

TEST_F(ScrollingTitle, FadesTheIconInAndThenTheTextOut) {
  phone.forget();
  phone.scroll(61);
  EXPECT_THAT(phone.journal(),
              ElementsAre("UITableView contentOffset", "UIView animateWithDuration:0.2 animations:",
                          "UIImageView setAlpha:1", "UILabel setAlpha:0"));
}

TEST_F(ScrollingTitle, FadesTheIconOutAndThenTheTextIn) {
  phone.forget();
  phone.scroll(60);
  EXPECT_THAT(phone.journal(),
              ElementsAre("UITableView contentOffset", "UIView animateWithDuration:0.2 animations:",
                          "UIImageView setAlpha:0", "UILabel setAlpha:1"));
}

TEST_F(ScrollingTitle, BeginsAFadeOnEveryCallbackAndEndsAllTheSame) {
  for (const auto& [offset, shown] : {std::pair(200.0, icon), {0.0, text}}) {
    phone.forget();
    for (int callback = 0; callback < 50; ++callback) {
      phone.scroll(offset);
      EXPECT_EQ(phone.titleAlphas(), shown);
    }
    EXPECT_THAT(phone.journal(),
                testing::Contains("UIView animateWithDuration:0.2 animations:").Times(50));
    EXPECT_EQ(phone.journal().size(), 200U);
  }
}

TEST_F(ScrollingTitle, StaysAsItWasWhenThePageComesBack) {
  phone.scroll(100);
  phone.tap("Clock");
  phone.back();
  EXPECT_EQ(phone.titleAlphas(), icon);
  phone.scroll(0);
  phone.tap("Clock");
  phone.back();
  EXPECT_EQ(phone.titleAlphas(), text);
}

TEST_F(ScrollingTitle, ShowsTheTextAgainOnANewPage) {
  phone.scroll(100);
  phone.reopen();
  EXPECT_EQ(phone.titleAlphas(), text);
}

TEST_F(ScrollingTitle, AsksThePageForTheTwoHalves) {
  phone.call("setTitleLabel:");
  phone.forget();
  phone.scroll(61);
  EXPECT_THAT(phone.journal(),
              ElementsAre("UITableView contentOffset",
                          "UIView animateWithDuration:0.2 animations:", "UIImageView setAlpha:1"));
  phone.call("setIconView:");
  phone.forget();
  phone.scroll(61);
  EXPECT_THAT(phone.journal(), ElementsAre("UITableView contentOffset",
                                           "UIView animateWithDuration:0.2 animations:"));
}

}  // namespace
