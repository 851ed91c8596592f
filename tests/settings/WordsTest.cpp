#include <gtest/gtest.h>
#include <vector>

#include "settings/cli/Words.h"

namespace settings_tests {
namespace {

using settings::cli::suggestion;

const std::vector<std::string> known = {"Clock", "Clack", "Nice Buttons", "Rain", "Rain"};

TEST(WordsTest, SuggestWhatDiffersLeastAndEachWordOnce) {
  EXPECT_EQ(suggestion("Clok", known, "none"), "; did you mean \"Clock\"?");
  EXPECT_EQ(suggestion("Cluck", known, "none"), "; did you mean \"Clock\", \"Clack\"?");
  EXPECT_EQ(suggestion("rain", known, "none"), "; did you mean \"Rain\"?");
  EXPECT_EQ(suggestion("Nise Button", known, "none"), "; did you mean \"Nice Buttons\"?");
}

TEST(WordsTest, SuggestNothingFarOff) {
  for (const std::string word : {"", "Thunder", "Brown", "Nice"}) {
    EXPECT_EQ(suggestion(word, known, "none"), "none") << word;
  }
  EXPECT_EQ(suggestion("Clock", {}, "none"), "none");
  EXPECT_EQ(suggestion(std::string(100'000, 'x'), known, "none"), "none");
}

TEST(WordsTest, AreTheSameInSmallAndCapitalLetters) {
  EXPECT_TRUE(settings::cli::isSameWord("Custom Color", "custom COLOR"));
  EXPECT_FALSE(settings::cli::isSameWord("Custom", "Custom Color"));
  EXPECT_FALSE(settings::cli::isSameWord("@", "`"));
}

}  // namespace
}  // namespace settings_tests
