#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <system_error>
#include <unistd.h>

#include "desktop/Descriptor.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

namespace fs = std::filesystem;

class PhoneFolderFolders : public PhoneTest {};

TEST_F(PhoneFolderFolders, ListGivesEveryNameButTheDots) {
  for (const char* name : {"a", ".hidden", "with space"}) writeBytes(host("/var") / name, "");
  auto names = phone->folder.list("/var");
  std::ranges::sort(names);
  EXPECT_EQ(names, (std::vector<std::string>{".hidden", "a", "mobile", "with space"}));
}

TEST_F(PhoneFolderFolders, ListGivesNothingForAnEmptyFolder) {
  EXPECT_EQ(phone->folder.list("/var/mobile/Library/Preferences"), std::vector<std::string>{});
}

TEST_F(PhoneFolderFolders, ListThrowsForWhatIsNoFolder) {
  writeBytes(file, "");
  EXPECT_THROW(phone->folder.list(path), std::system_error);
  EXPECT_THROW(phone->folder.list("/missing"), std::system_error);
}

TEST_F(PhoneFolderFolders, ListTwiceGivesTheSame) {
  EXPECT_EQ(phone->folder.list("/"), phone->folder.list("/"));
}

TEST_F(PhoneFolderFolders, ExistsTellsWhatStandsThere) {
  writeBytes(file, "");
  EXPECT_TRUE(phone->folder.exists(path));
  EXPECT_TRUE(phone->folder.exists("/"));
  EXPECT_TRUE(phone->folder.exists("/var/mobile"));
  EXPECT_FALSE(phone->folder.exists("/missing"));
  EXPECT_TRUE(phone->folder.isFile(path));
  EXPECT_FALSE(phone->folder.isFile("/var/mobile"));
  EXPECT_FALSE(phone->folder.isFile("/missing"));
  EXPECT_FALSE(phone->folder.exists(std::string(path) + "/below"));
}

TEST_F(PhoneFolderFolders, MakeFoldersMakesAllThatAreMissing) {
  phone->folder.makeFolders("/Library/Lotties/Quillmere");
  EXPECT_TRUE(fs::is_directory(host("/Library/Lotties/Quillmere")));
}

TEST_F(PhoneFolderFolders, MakeFoldersLeavesThoseThatAreThere) {
  writeBytes(file, "kept");
  phone->folder.makeFolders("/var/mobile/Library/Preferences");
  EXPECT_EQ(bytesOf(file), "kept");
}

TEST_F(PhoneFolderFolders, MakeFoldersGoesThroughLinks) {
  fs::create_directories(host("/private/there"));
  fs::create_directory_symlink("private/there", host("/link"));
  phone->folder.makeFolders("/link/below");
  EXPECT_TRUE(fs::is_directory(host("/private/there/below")));
}

TEST_F(PhoneFolderFolders, MakeFoldersThrowsBelowAFile) {
  writeBytes(file, "kept");
  EXPECT_THROW(phone->folder.makeFolders(std::string(path) + "/below"), std::system_error);
  EXPECT_EQ(bytesOf(file), "kept");
}

TEST_F(PhoneFolderFolders, MakeLinkMakesTheLinkAsItIsTold) {
  phone->folder.makeLink("/User", "/var/mobile");
  EXPECT_EQ(fs::read_symlink(host("/User")), "/var/mobile");
}

TEST_F(PhoneFolderFolders, MakeLinkLeavesWhatStandsThere) {
  writeBytes(host("/User"), "a file");
  phone->folder.makeLink("/User", "/var/mobile");
  EXPECT_EQ(bytesOf(host("/User")), "a file");
}

TEST_F(PhoneFolderFolders, MakeLinkThrowsInAMissingFolder) {
  EXPECT_THROW(phone->folder.makeLink("/missing/link", "x"), std::system_error);
}

/// The names of the files that come to be in a folder.
class Watch {
 public:
  explicit Watch(const fs::path& folder) : events_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    EXPECT_GE(inotify_add_watch(events_.number(), folder.c_str(), IN_CREATE), 0);
  }

  /// The first one since the last call; empty when there was none.
  std::string created() {
    alignas(inotify_event) std::array<char, 4096> bytes;
    if (read(events_.number(), bytes.data(), bytes.size()) <= 0) return {};
    return reinterpret_cast<const inotify_event*>(bytes.data())->name;
  }

 private:
  desktop::Descriptor events_;
};

class PhoneFolderSweep : public PhoneTest {
 protected:
  static constexpr const char* preferences = "/var/mobile/Library/Preferences";

  /// The name under which a file is written before it is put in place.
  std::string asideName() {
    Watch watch(file.parent_path());
    phone->folder.replace(path, "new");
    return watch.created();
  }
};

TEST_F(PhoneFolderSweep, RemovesWhatAnInterruptedReplaceLeft) {
  const std::string aside = asideName();
  ASSERT_NE(aside, "");
  writeBytes(file.parent_path() / aside, "half");
  phone->folder.sweep(preferences);
  EXPECT_EQ(namesIn(file.parent_path()), std::vector<std::string>{file.filename()});
}

TEST_F(PhoneFolderSweep, LeavesEverythingElse) {
  const std::vector<std::string> names = {
      ".GlobalPreferences.plist", ".aside-", ".aside-notes", ".my.aside-1", "a.aside-1", "notes"};
  for (const std::string& name : names) writeBytes(file.parent_path() / name, name);
  phone->folder.sweep(preferences);
  EXPECT_EQ(namesIn(file.parent_path()), names);
}

TEST_F(PhoneFolderSweep, LeavesAFolderOfSuchAName) {
  const std::string aside = asideName();
  fs::create_directories(file.parent_path() / aside / "inside");
  phone->folder.sweep(preferences);
  EXPECT_TRUE(fs::exists(file.parent_path() / aside / "inside"));
}

TEST_F(PhoneFolderSweep, GivesEveryReplaceANameOfItsOwn) { EXPECT_NE(asideName(), asideName()); }

TEST_F(PhoneFolderSweep, ThrowsForAMissingFolder) {
  EXPECT_THROW(phone->folder.sweep("/missing"), std::system_error);
}

}  // namespace
}  // namespace desktop_tests
