#include <algorithm>
#include <gtest/gtest.h>

#include "desktop/Foundation/Values.h"
#include "platform/Foundation/NSFileManager.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

namespace fs = std::filesystem;
using platform::NSArray;
using platform::NSFileManager;
using platform::NSString;

class NSFileManagerTest : public PhoneTest {
 protected:
  NSFileManagerTest() { fs::create_directories(host("/Library/Things")); }

  std::vector<std::string> listed(const char* folderPath) const {
    const NSArray names = manager.contentsOfDirectoryAtPath(folderPath);
    std::vector<std::string> texts;
    for (std::size_t index = 0; index < names.count(); ++index) {
      texts.push_back(desktop::textOf(names.objectAtIndex(index)));
    }
    return texts;
  }

  const NSFileManager manager = NSFileManager::defaultManager();
};

TEST_F(NSFileManagerTest, IsOneObject) { EXPECT_TRUE(manager == NSFileManager::defaultManager()); }

TEST_F(NSFileManagerTest, ListsAFolderInItsOwnOrder) {
  for (const char* name : {"b", "a", ".hidden", "Ünï code"}) {
    writeBytes(host("/Library/Things") / name, "");
  }
  EXPECT_EQ(listed("/Library/Things"), phone->folder.list("/Library/Things"));
  EXPECT_EQ(listed("/Library/Things").size(), 4U);
}

TEST_F(NSFileManagerTest, PassesOverANameThatIsNoText) {
  writeBytes(host("/Library/Things") / "\xff", "");
  writeBytes(host("/Library/Things") / "a", "");
  EXPECT_EQ(listed("/Library/Things"), std::vector<std::string>{"a"});
  EXPECT_TRUE(reported("not UTF-8"));
}

TEST_F(NSFileManagerTest, ListsAnEmptyFolderAsAnEmptyArray) {
  EXPECT_TRUE(manager.contentsOfDirectoryAtPath("/Library/Things"));
  EXPECT_TRUE(listed("/Library/Things").empty());
}

TEST_F(NSFileManagerTest, ListsNothingWhereThereIsNoFolderToRead) {
  writeBytes(host("/Library/file"), "");
  fs::create_directory_symlink("/etc", host("/Library/out"));
  for (const char* each : {"/Library/Missing", "/Library/file", "/Library/out", ""}) {
    EXPECT_FALSE(manager.contentsOfDirectoryAtPath(each)) << each;
  }
  fs::permissions(host("/Library/Things"), fs::perms::none);
  EXPECT_FALSE(manager.contentsOfDirectoryAtPath("/Library/Things"));
  fs::permissions(host("/Library/Things"), fs::perms::owner_all);
  EXPECT_FALSE(manager.contentsOfDirectoryAtPath(NSString()));
}

TEST_F(NSFileManagerTest, FindsFilesAndFolders) {
  writeBytes(host("/Library/file"), "");
  EXPECT_TRUE(manager.fileExistsAtPath("/Library/file"));
  EXPECT_TRUE(manager.fileExistsAtPath("/Library/Things"));
  EXPECT_FALSE(manager.fileExistsAtPath("/Library/Missing"));
  EXPECT_FALSE(manager.fileExistsAtPath("/etc/passwd"));
  EXPECT_FALSE(manager.fileExistsAtPath(NSString()));
}

TEST_F(NSFileManagerTest, DeletesAFile) {
  writeBytes(host("/Library/file"), "");
  EXPECT_TRUE(manager.removeItemAtPath("/Library/file"));
  EXPECT_FALSE(fs::exists(host("/Library/file")));
  EXPECT_TRUE(reports.empty());
}

TEST_F(NSFileManagerTest, DeletesALinkAndNotWhatItLeadsTo) {
  writeBytes(host("/Library/file"), "kept");
  fs::create_symlink("file", host("/Library/link"));
  fs::create_symlink("nowhere", host("/Library/dangling"));
  EXPECT_TRUE(manager.removeItemAtPath("/Library/link"));
  EXPECT_TRUE(manager.removeItemAtPath("/Library/dangling"));
  EXPECT_EQ(namesIn(host("/Library")), (std::vector<std::string>{"Things", "file"}));
}

TEST_F(NSFileManagerTest, DeletesNothingWhereNothingIs) {
  EXPECT_FALSE(manager.removeItemAtPath("/Library/Missing"));
  EXPECT_FALSE(manager.removeItemAtPath("/Missing/file"));
  EXPECT_FALSE(manager.removeItemAtPath(""));
  EXPECT_FALSE(manager.removeItemAtPath(NSString()));
  EXPECT_TRUE(reports.empty());
}

TEST_F(NSFileManagerTest, LeavesAFolderAndSaysSo) {
  writeBytes(host("/Library/Things/file"), "kept");
  EXPECT_FALSE(manager.removeItemAtPath("/Library/Things"));
  EXPECT_EQ(bytesOf(host("/Library/Things/file")), "kept");
  EXPECT_TRUE(reported("/Library/Things was not deleted"));
}

TEST_F(NSFileManagerTest, SaysWhatTheDiskRefused) {
  writeBytes(file, "kept");
  fs::permissions(file.parent_path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_FALSE(manager.removeItemAtPath(path));
  EXPECT_TRUE(fs::exists(file));
  EXPECT_TRUE(reported(std::string(path) + " was not deleted"));
}

TEST_F(NSFileManagerTest, StandsInTheJournalWithTheRealSelectors) {
  phone->journal.start();
  NSFileManager::defaultManager().removeItemAtPath("/a");
  manager.contentsOfDirectoryAtPath("/a");
  manager.fileExistsAtPath("/a");
  const std::vector<std::string> expected = {
      R"(NSFileManager defaultManager)",
      R"(NSFileManager removeItemAtPath:"/a" error:nil)",
      R"(NSFileManager contentsOfDirectoryAtPath:"/a" error:nil)",
      R"(NSFileManager fileExistsAtPath:"/a")",
  };
  EXPECT_EQ(phone->journal.lines(), expected);
}

}  // namespace
}  // namespace desktop_tests
