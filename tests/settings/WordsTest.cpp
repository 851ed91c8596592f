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

TEST(WordsTest, ShowTheirControlCharacters) {
  using settings::cli::visible;
  EXPECT_EQ(visible("a\tb\nc\rd"), "a\\tb\\nc\\rd");
  EXPECT_EQ(visible("\x1b[31m\x7f\x01"), "\\x1b[31m\\x7f\\x01");
  EXPECT_EQ(visible(std::string(1, '\0')), "\\x00");
  EXPECT_EQ(visible("\xc2\x80 \xc2\x9b"), "\\x80 \\x9b");
}

TEST(WordsTest, AreShownAsTheyAreOtherwise) {
  for (const std::string word :
       {"", "Nice Buttons", "\\n", "\xc2\xa0", "Ünï\xe2\x80\x94", "\xc2"}) {
    EXPECT_EQ(settings::cli::visible(word), word);
  }
}

}  // namespace
}  // namespace settings_tests
