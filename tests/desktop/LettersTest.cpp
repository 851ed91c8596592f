#include <gtest/gtest.h>

#include "desktop/Letters.h"

namespace desktop_tests {
namespace {

TEST(LettersTest, OnlyCapitalOnesOfAsciiHaveSmallOnes) {
  for (int code = 0; code < 256; ++code) {
    const auto letter = static_cast<char>(code);
    const bool isCapital = code >= 65 && code <= 90;
    EXPECT_EQ(desktop::lower(letter), isCapital ? static_cast<char>(code + 32) : letter) << code;
  }
}

}  // namespace
}  // namespace desktop_tests
