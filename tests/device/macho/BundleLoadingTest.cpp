#include <filesystem>
#include <gmock/gmock.h>
#include <iostream>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/device/macho/Bundle.h"
#include "tests/device/macho/MachO.h"

namespace phone_tests {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;

INSTANTIATE_TEST_SUITE_P(Phone, Bundle,
                         testing::Values(Layout{"rootful", "/Library/Frameworks", ""},
                                         Layout{"rootless", "@rpath", "/var/jb"}),
                         [](const auto& instance) { return instance.param.name; });

/// The load commands of that kind.
std::vector<LoadCommand> commandsNamed(const std::string& name, const std::filesystem::path& file) {
  std::vector<LoadCommand> commands = loadCommandsOf(file);
  std::erase_if(commands, [&](const LoadCommand& each) { return each.at("cmd") != name; });
  return commands;
}

TEST_P(Bundle, IsABundleOfArm64WithTwoLevelNames) {
  const std::set<std::string> header = headerOf(file);
  for (const char* word : {"ARM64", "BUNDLE", "TWOLEVEL", "NOUNDEFS"}) {
    EXPECT_THAT(header, Contains(word));
  }
}

TEST_P(Bundle, LoadsFromIos12On) {
  EXPECT_THAT(
      commandsNamed("LC_BUILD_VERSION", file),
      ElementsAre(AllOf(Contains(Pair("platform", "ios")), Contains(Pair("minos", "12.0")))));
}

TEST_P(Bundle, CanDoWithoutWhatIsNoPartOfTheSystem) {
  std::map<std::string, bool> mayBeMissing = {
      {"/usr/lib/libSystem.B.dylib", false},
      {"/usr/lib/libc++.1.dylib", false},
      {"/usr/lib/libobjc.A.dylib", false},
      {"/usr/lib/libMobileGestalt.dylib", false},
      {"/System/Library/Frameworks/Foundation.framework/Foundation", false},
      {"/System/Library/Frameworks/CoreFoundation.framework/CoreFoundation", false},
      {"/System/Library/Frameworks/UIKit.framework/UIKit", false},
      {"/System/Library/Frameworks/MessageUI.framework/MessageUI", false},
      {"/System/Library/PrivateFrameworks/Preferences.framework/Preferences", false},
  };
  for (const std::string name : {"Cephei", "CepheiPrefs"}) {
    mayBeMissing.emplace(GetParam().cephei + "/" + name + ".framework/" + name, true);
  }
  // Nothing is taken from these two, which would not be there when their classes are looked up.
  for (const char* name : {"libCSColorPicker", "libOrvalenPrefs"}) {
    mayBeMissing.emplace(GetParam().prefix + "/usr/lib/" + name + ".dylib", true);
  }
  EXPECT_EQ(librariesOf(file), mayBeMissing);
}

TEST_P(Bundle, LooksForCepheiAndFilesWhereTheLayoutHasThem) {
  const std::vector<LoadCommand> folders = commandsNamed("LC_RPATH", file);
  const std::string& prefix = GetParam().prefix;
  if (prefix.empty()) {
    EXPECT_THAT(folders, IsEmpty());
  } else {
    EXPECT_THAT(folders, ElementsAre(Contains(Pair("path", prefix + "/Library/Frameworks"))));
  }
  // As a whole text of C, end included.
  const bool namesVarJb = contents(file).find(std::string("/var/jb\0", 8)) != std::string::npos;
  EXPECT_EQ(namesVarJb, !prefix.empty());
}

TEST_P(Bundle, IsSmall) {
  const std::uintmax_t bytes = std::filesystem::file_size(file);
  std::cout << file.string() << ": " << bytes << " bytes\n";
  EXPECT_LE(bytes, 250'000U);
}

/// Settings loads it while the user waits: of its own it is to do nothing then.
TEST_P(Bundle, RunsNothingWhenItIsLoaded) {
  const std::set<std::string> sections = sectionsOf(file);
  EXPECT_THAT(sections, Contains("__text"));
  for (const char* name : {"__mod_init_func", "__init_offsets", "__objc_nlclslist"}) {
    EXPECT_THAT(sections, Not(Contains(name)));
  }
}

}  // namespace
}  // namespace phone_tests
