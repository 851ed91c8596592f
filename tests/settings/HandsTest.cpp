#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "settings/cli/Hands.h"
#include "settings/cli/Values.h"
#include "tests/support/TemporaryFolder.h"

namespace settings_tests {
namespace {

using settings::cli::Hands;

TEST(HandsTest, WaitForTheCommandsOfEveryChange) {
  const support::TemporaryFolder folder;
  settings::Options options;
  options.root = folder.path;
  options.notifyCommand = "sleep 0.1; echo run >> '" + (folder.path / "noted").string() + "'";
  Hands hands(options);
  const auto row = rowWithKey(hands, "clockDigitSize");
  std::string expected;
  for (const char* size : {"80", "81", "82"}) {
    hands.change([&] { change(row, size); });
    expected += "run\n";
    std::ifstream noted(folder.path / "noted");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(noted), {}), expected) << size;
  }
}

}  // namespace
}  // namespace settings_tests
