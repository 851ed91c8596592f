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

TEST(HandsTest, TellTheUsersCommandOfNotificationsInOrder) {
  const support::TemporaryFolder folder;
  settings::Options options;
  options.root = folder.path;
  options.notifyCommand = "echo \"$1\" >> '" + (folder.path / "noted").string() + "'";
  Hands hands(options);
  std::ofstream(folder.path / "Library/PreferenceBundles/Quillmere.bundle/Root.plist")
      << resourceWithOwnNotification();
  hands.board().open("prefs:root=Quillmere");
  const auto row = rowWithKey(hands, "own");
  hands.change([&] { change(row, "on"); });
  std::ifstream noted(folder.path / "noted");
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(noted), {}),
            "com.orvalen.own\ncom.orvalen.quillmere.prefs-changed\n");
}

}  // namespace
}  // namespace settings_tests
