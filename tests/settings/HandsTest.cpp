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

class HandsTest : public testing::Test {
 protected:
  /// Whoever works a phone whose notifications run the command: what that prints is noted.
  Hands handsThatRun(const std::string& command) const {
    settings::Options options;
    options.root = folder.path;
    options.notifyCommand = "{ " + command + "; } >> '" + notes.string() + "'";
    return Hands(options);
  }

  std::string noted() const {
    std::ifstream file(notes);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  const support::TemporaryFolder folder;
  const std::filesystem::path notes = folder.path / "noted";
};

TEST_F(HandsTest, WaitForTheCommandsOfEveryChange) {
  Hands hands = handsThatRun("sleep 0.1; echo run");
  const auto row = rowWithKey(hands, "clockDigitSize");
  std::string expected;
  for (const char* size : {"80", "81", "82"}) {
    hands.change([&] { change(row, size); });
    expected += "run\n";
    EXPECT_EQ(noted(), expected) << size;
  }
}

/// A list resource whose first row has a notification of its own.
std::string resourceWithOwnNotification() {
  std::string items =
      "<dict><key>cell</key><string>PSSwitchCell</string><key>key</key><string>own</string>"
      "<key>defaults</key><string>com.orvalen.quillmere</string>"
      "<key>PostNotification</key><string>com.orvalen.own</string></dict>";
  for (int row = 1; row < 11; ++row) {
    items += "<dict><key>cell</key><string>PSStaticTextCell</string></dict>";
  }
  return "<plist><dict><key>items</key><array>" + items + "</array></dict></plist>";
}

TEST_F(HandsTest, TellTheUsersCommandOfNotificationsInOrder) {
  Hands hands = handsThatRun("echo \"$1\"");
  std::ofstream(folder.path / "Library/PreferenceBundles/Quillmere.bundle/Root.plist")
      << resourceWithOwnNotification();
  hands.board().open("prefs:root=Quillmere");
  const auto row = rowWithKey(hands, "own");
  hands.change([&] { change(row, "on"); });
  EXPECT_EQ(noted(), "com.orvalen.own\ncom.orvalen.quillmere.prefs-changed\n");
}

}  // namespace
}  // namespace settings_tests
