#include <gtest/gtest.h>

#include "desktop/Exception.h"
#include "desktop/SettingsApplication.h"
#include "desktop/UIKit/ControllerState.h"
#include "tests/desktop/AddonTest.h"
#include "tests/desktop/BadFiles.h"

namespace desktop_tests {
namespace {

namespace fs = std::filesystem;
using desktop::SettingsApplication;

class SettingsApplicationTest : public AddonTest {
 protected:
  ~SettingsApplicationTest() override {
    std::error_code ignored;
    for (const char* name : {"Addon.plist", "Bad.plist"}) {
      fs::permissions(loader / name, fs::perms::owner_all, ignored);
    }
  }

  /// Why the application does not start; empty when it does.
  static std::string failure() {
    try {
      const SettingsApplication application("Addon");
      return "";
    } catch (const std::exception& reason) {
      return reason.what();
    }
  }
};

TEST_F(SettingsApplicationTest, OpensThePrincipalPageUnderTheEntrysLabel) {
  SettingsApplication application("Addon");
  ASSERT_EQ(application.navigation.pages().size(), 1U);
  const auto& controller = *application.navigation.top().controller;
  EXPECT_EQ(desktop::titleOf(controller), "Addon");
  EXPECT_EQ(desktop::stateOf(controller).className, "TestPage");
}

TEST_F(SettingsApplicationTest, FindsItsEntryAmongOthers) {
  writeBytes(loader / "A.plist", entryFor("Another"));
  writeBytes(loader / "Z.plist",
             "<plist><dict><key>entry</key><string>odd</string></dict></plist>");
  EXPECT_EQ(failure(), "");
}

TEST_F(SettingsApplicationTest, LooksIntoPropertyListsOnly) {
  for (const char* name : {".aside-1", "Notes.txt", "plist"}) writeBytes(loader / name, "half");
  EXPECT_EQ(failure(), "");
  fs::remove(loader / "Addon.plist");
  EXPECT_NE(failure(), "");
  EXPECT_EQ(reports, std::vector<std::string>{});
}

TEST_F(SettingsApplicationTest, SaysThatTheEntryIsMissing) {
  fs::remove(loader / "Addon.plist");
  EXPECT_EQ(failure(), "no entry in /Library/PreferenceLoader/Preferences is labelled Addon");
}

TEST_F(SettingsApplicationTest, SaysThatTheFolderOfEntriesIsMissing) {
  fs::remove_all(loader);
  EXPECT_NE(failure().find("/Library/PreferenceLoader/Preferences"), std::string::npos);
}

TEST_F(SettingsApplicationTest, SaysThatTheBundlesInfoIsMissing) {
  fs::remove(bundle / "Info.plist");
  EXPECT_EQ(failure(), "the bundle has no class \"\"");
}

TEST_F(SettingsApplicationTest, SaysThatThePrincipalClassIsUnknown) {
  writeBytes(bundle / "Info.plist", infoWith("NoSuchPage"));
  EXPECT_EQ(failure(), "the bundle has no class \"NoSuchPage\"");
}

TEST_F(SettingsApplicationTest, SaysThatThePrincipalPageRefused) {
  writeBytes(bundle / "Info.plist", infoWith("RefusingPage"));
  EXPECT_EQ(failure(), "RefusingPage could not be initialised");
}

class BadLoaderEntry : public SettingsApplicationTest,
                       public testing::WithParamInterface<BadFile> {};

TEST_P(BadLoaderEntry, OfAnotherBundleIsReportedAndPassedOver) {
  GetParam().make(loader / "Bad.plist");
  EXPECT_EQ(failure(), "");
}

TEST_P(BadLoaderEntry, OfItsOwnIsReportedByItsPath) {
  fs::remove(loader / "Addon.plist");
  GetParam().make(loader / "Addon.plist");
  EXPECT_NE(failure(), "");
  EXPECT_TRUE(reported((loader / "Addon.plist").filename().string() + " cannot be read"));
}

TEST_P(BadLoaderEntry, AsTheBundlesInfoIsReportedByItsPath) {
  fs::remove(bundle / "Info.plist");
  GetParam().make(bundle / "Info.plist");
  EXPECT_EQ(failure(), "the bundle has no class \"\"");
  EXPECT_TRUE(reported("/Library/PreferenceBundles/Addon.bundle/Info.plist cannot be read"));
  std::error_code ignored;
  fs::permissions(bundle / "Info.plist", fs::perms::owner_all, ignored);
}

INSTANTIATE_TEST_SUITE_P(SettingsApplication, BadLoaderEntry, testing::ValuesIn(badFiles()),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace desktop_tests
