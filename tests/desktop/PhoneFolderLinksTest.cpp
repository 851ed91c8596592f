#include <gtest/gtest.h>
#include <system_error>

#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

namespace fs = std::filesystem;

/// Beside the phone's folder there is another, which nothing may read or write.
class PhoneFolderLinks : public PhoneTest {
 protected:
  PhoneFolderLinks() {
    writeBytes(outside.path / "secret", "outside");
    before = portrait(outside.path / "secret");
  }
  ~PhoneFolderLinks() override {
    EXPECT_EQ(portrait(outside.path / "secret"), before);
    EXPECT_EQ(namesIn(outside.path), std::vector<std::string>{"secret"});
  }

  const support::TemporaryFolder outside{};
  std::string before;
};

TEST_F(PhoneFolderLinks, AnAbsoluteLinkStartsAtThePhonesRoot) {
  fs::create_symlink("/var/mobile", host("/User"));
  phone->folder.replace("/User/Library/Preferences/a", "written");
  EXPECT_EQ(bytesOf(file.parent_path() / "a"), "written");
  EXPECT_EQ(phone->folder.read("/User/Library/Preferences/a"), "written");
}

TEST_F(PhoneFolderLinks, ALinkToAnAbsolutePathOfThisComputerLeadsNowhere) {
  fs::create_symlink(outside.path / "secret", file);
  EXPECT_EQ(phone->folder.read(path), std::nullopt);
  EXPECT_FALSE(phone->folder.exists(path));
}

TEST_F(PhoneFolderLinks, DotsInALinkStopAtThePhonesRoot) {
  const fs::path up = "../../../../../../../../../..";
  fs::create_symlink(up / outside.path.relative_path() / "secret", file);
  EXPECT_EQ(phone->folder.read(path), std::nullopt);
}

TEST_F(PhoneFolderLinks, DotsInAPathStopAtThePhonesRoot) {
  const std::string up = "/../../../../../../../..";
  EXPECT_EQ(phone->folder.read(up + (outside.path / "secret").string()), std::nullopt);
  EXPECT_THROW(phone->folder.replace(up + (outside.path / "secret").string(), "x"),
               std::system_error);
  writeBytes(host("/inside"), "inside");
  EXPECT_EQ(phone->folder.read(up + "/inside"), "inside");
}

TEST_F(PhoneFolderLinks, ALinkInTheFilesPlaceIsFollowedAndStays) {
  writeBytes(host("/var/mobile/real"), "old");
  for (const char* target : {"/var/mobile/real", "../../real"}) {
    fs::remove(file);
    fs::create_symlink(target, file);
    phone->folder.replace(path, target);
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(bytesOf(host("/var/mobile/real")), target);
  }
}

TEST_F(PhoneFolderLinks, ALinkPlantedAsTheFileIsNotFollowedOut) {
  fs::create_symlink(outside.path / "secret", file);
  EXPECT_THROW(phone->folder.replace(path, "new"), std::system_error);
  EXPECT_TRUE(fs::is_symlink(file));
}

TEST_F(PhoneFolderLinks, LinksInACircleAreNotReplaced) {
  fs::create_symlink(file.filename(), file);
  EXPECT_THROW(phone->folder.replace(path, "new"), std::system_error);
  EXPECT_TRUE(fs::is_symlink(file));
}

TEST_F(PhoneFolderLinks, ALinkPlantedAsAFolderOnTheWayIsNotFollowedOut) {
  fs::remove(file.parent_path());
  fs::create_directory_symlink(outside.path, file.parent_path());
  EXPECT_EQ(phone->folder.read("/var/mobile/Library/Preferences/secret"), std::nullopt);
  EXPECT_THROW(phone->folder.replace(path, "new"), std::system_error);
  EXPECT_THROW(phone->folder.list("/var/mobile/Library/Preferences"), std::system_error);
  EXPECT_THROW(phone->folder.sweep("/var/mobile/Library/Preferences"), std::system_error);
  EXPECT_THROW(phone->folder.makeLink("/var/mobile/Library/Preferences/x", "y"), std::system_error);
  EXPECT_THROW(phone->folder.makeFolders("/var/mobile/Library/Preferences/x"), std::system_error);
}

TEST_F(PhoneFolderLinks, RemovingALinkLeavesWhatItPointsTo) {
  fs::create_symlink(outside.path / "secret", file);
  phone->folder.remove(path);
  EXPECT_FALSE(fs::is_symlink(file));
}

TEST_F(PhoneFolderLinks, ALinkThatPointsToItselfThrows) {
  fs::create_symlink(path, file);
  EXPECT_THROW(phone->folder.read(path), std::system_error);
}

TEST_F(PhoneFolderLinks, ALoopOfFoldersThrows) {
  fs::create_directory_symlink("/two", host("/one"));
  fs::create_directory_symlink("/one", host("/two"));
  EXPECT_THROW(phone->folder.read("/one/file"), std::system_error);
  EXPECT_THROW(phone->folder.replace("/one/file", "x"), std::system_error);
}

TEST_F(PhoneFolderLinks, TheKernelsOwnLinksAreNotFollowed) {
  const desktop::PhoneFolder computer("/");
  EXPECT_THROW(computer.read("/proc/self/exe"), std::system_error);
}

TEST_F(PhoneFolderLinks, TheServiceNeverWritesThroughAPlantedFile) {
  fs::create_symlink(outside.path / "secret", file);
  phone->preferences.set(domain, "key", plist::Value(true));
  EXPECT_EQ(reports.size(), 1U);
  EXPECT_TRUE(fs::is_symlink(file));
}

TEST_F(PhoneFolderLinks, TheServiceReportsAPlantedFolderAndWritesNothing) {
  fs::remove(file.parent_path());
  fs::create_directory_symlink(outside.path, file.parent_path());
  phone->preferences.set(domain, "key", plist::Value(true));
  EXPECT_TRUE(reported("key was not stored"));
}

TEST_F(PhoneFolderLinks, TheFolderItselfMayBeNamedByALink) {
  fs::create_directory_symlink(folder.path, host("/self"));
  const desktop::PhoneFolder linked(host("/self"));
  writeBytes(file, "bytes");
  EXPECT_EQ(linked.read(path), "bytes");
}

}  // namespace
}  // namespace desktop_tests
