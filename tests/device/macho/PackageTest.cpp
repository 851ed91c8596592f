#include <filesystem>
#include <gmock/gmock.h>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "tests/device/macho/Package.h"

namespace phone_tests {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

INSTANTIATE_TEST_SUITE_P(
    Phone, Package,
    testing::Values(Packaging{"rootful", "./", "iphoneos-arm",
                              "firmware (>= 12.0), preferenceloader, ws.hbang.common (>= 1.17.1), "
                              "com.creaturesurvive.libcscolorpicker, com.orvalen.liborvalenprefs"},
                    Packaging{"rootless", "./var/jb/", "iphoneos-arm64",
                              "firmware (>= 15.0), preferenceloader, ws.hbang.common (>= 2.0), "
                              "com.creaturesurvive.libcscolorpicker, com.orvalen.liborvalenprefs"}),
    [](const auto& instance) { return instance.param.layout; });

/// The installed paths below the prefix, and the project's file for each.
std::map<std::string, std::filesystem::path> installed(const std::string& layout) {
  const std::string bundle = "Library/PreferenceBundles/Quillmere.bundle/";
  std::map<std::string, std::filesystem::path> files = {
      {bundle + "Quillmere", executable(layout)},
      {"Library/PreferenceLoader/Preferences/Quillmere.plist",
       project() / "packaging/Quillmere.plist"},
  };
  for (const char* resource :
       {"Info.plist", "Root.plist", "Icon@2x.png", "Header.png", "Designer@3x.png"}) {
    files.emplace(bundle + resource, project() / "resources" / resource);
  }
  return files;
}

TEST_P(Package, NamesItself) {
  EXPECT_EQ(field("Package"), "com.orvalen.quillmere.settings");
  EXPECT_EQ(field("Version"), "1.0.0");
  EXPECT_EQ(field("Architecture"), GetParam().architecture);
  EXPECT_EQ(field("Section"), "Tweaks");
  for (const char* name : {"Name", "Maintainer", "Description", "Installed-Size"}) {
    EXPECT_NE(field(name), "") << name;
  }
}

TEST_P(Package, NamesWhatItNeeds) { EXPECT_EQ(field("Depends"), GetParam().depends); }

TEST_P(Package, IsSmall) {
  const std::uintmax_t bytes = std::filesystem::file_size(path);
  std::cout << path.string() << ": " << bytes << " bytes\n";
  EXPECT_LT(bytes, 1U << 19);
}

TEST_P(Package, HoldsTheBundleAndTheLoadersEntryBelowItsPrefix) {
  std::map<std::string, std::filesystem::path> missing = installed(GetParam().layout);
  const Archive archive = files();
  for (const Member& member : archive.members()) {
    if (member.isFolder()) continue;
    ASSERT_THAT(member.name, StartsWith(GetParam().prefix));
    const auto expected = missing.find(member.name.substr(GetParam().prefix.size()));
    ASSERT_NE(expected, missing.end()) << member.name;
    EXPECT_TRUE(archive.file(member.name) == contents(expected->second)) << member.name;
    missing.erase(expected);
  }
  EXPECT_THAT(missing, testing::IsEmpty());
}

TEST_P(Package, GivesEverythingToRootWithFixedModesAndTimes) {
  for (const std::vector<Member>& members : {files().members(), control().members()}) {
    ASSERT_FALSE(members.empty());
    for (const Member& member : members) {
      const bool runs = member.name.ends_with("/Quillmere");
      const char* mode = member.isFolder() ? "drwxr-xr-x" : runs ? "-rwxr-xr-x" : "-rw-r--r--";
      EXPECT_EQ(member.mode, mode) << member.name;
      EXPECT_EQ(member.owner, "0/0") << member.name;
      EXPECT_EQ(member.time, "2026-01-01 00:00:00") << member.name;
    }
  }
}

TEST_P(Package, BringsNoScripts) {
  std::vector<std::string> names;
  for (const Member& member : control().members()) {
    if (!member.isFolder()) names.push_back(member.name);
  }
  EXPECT_THAT(names, ElementsAre("./control"));
}

TEST_P(Package, IsTheSameWhenItIsPackedAgain) {
  const support::TemporaryFolder folder;
  output({project() / "packaging/make-package", GetParam().layout, executable(GetParam().layout),
          folder.path});
  EXPECT_TRUE(contents(folder.path / path.filename()) == contents(path));
}

}  // namespace
}  // namespace phone_tests
