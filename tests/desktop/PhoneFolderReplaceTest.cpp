#include <array>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <system_error>

#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

namespace fs = std::filesystem;

class PhoneFolderReplace : public PhoneTest {
 protected:
  mode_t mode() const {
    struct stat status {};
    EXPECT_EQ(stat(file.c_str(), &status), 0);
    return status.st_mode & 07777;
  }
  std::vector<std::string> names() const { return namesIn(file.parent_path()); }
  const std::vector<std::string> onlyTheFile{file.filename().string()};
};

/// For as long as it lives, no file of this process grows beyond that many bytes.
class SmallDisk {
 public:
  explicit SmallDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  ~SmallDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int);
};

TEST_F(PhoneFolderReplace, MakesANewFile) {
  phone->folder.replace(path, "new");
  EXPECT_EQ(bytesOf(file), "new");
  EXPECT_EQ(names(), onlyTheFile);
}

TEST_F(PhoneFolderReplace, GivesANewFileTheUsualModeWhateverTheUmask) {
  const mode_t before = umask(0077);
  phone->folder.replace(path, "new");
  umask(before);
  EXPECT_EQ(mode(), 0644U);
}

TEST_F(PhoneFolderReplace, KeepsTheMode) {
  writeBytes(file, "old");
  ASSERT_EQ(chmod(file.c_str(), 0640), 0);
  phone->folder.replace(path, "new");
  EXPECT_EQ(bytesOf(file), "new");
  EXPECT_EQ(mode(), 0640U);
}

TEST_F(PhoneFolderReplace, PutsANewFileInPlaceInsteadOfWritingIntoTheOldOne) {
  writeBytes(file, "old");
  fs::create_hard_link(file, host("/other"));
  phone->folder.replace(path, "new");
  EXPECT_EQ(bytesOf(host("/other")), "old");
}

TEST_F(PhoneFolderReplace, WritesEveryByteOfAGreatFile) {
  const std::string bytes(5'000'000, '\xfe');
  phone->folder.replace(path, bytes);
  EXPECT_EQ(phone->folder.read(path), bytes);
}

TEST_F(PhoneFolderReplace, LeavesTheOldContentWholeWhenTheDiskIsFull) {
  writeBytes(file, "old");
  const std::string before = portrait(file);
  {
    const SmallDisk disk(1000);
    EXPECT_THROW(phone->folder.replace(path, std::string(5000, 'x')), std::system_error);
  }
  EXPECT_EQ(portrait(file), before);
  EXPECT_EQ(names(), onlyTheFile);
}

TEST_F(PhoneFolderReplace, LeavesTheOldContentWholeInAFolderThatTakesNoFiles) {
  writeBytes(file, "old");
  const std::string before = portrait(file);
  fs::permissions(file.parent_path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_THROW(phone->folder.replace(path, "new"), std::system_error);
  EXPECT_EQ(portrait(file), before);
}

TEST_F(PhoneFolderReplace, ThrowsAndLeavesNothingWhereAFolderStands) {
  fs::create_directories(file / "inside");
  EXPECT_THROW(phone->folder.replace(path, "new"), std::system_error);
  EXPECT_TRUE(fs::is_directory(file / "inside"));
  EXPECT_EQ(names(), onlyTheFile);
}

TEST_F(PhoneFolderReplace, ThrowsForAMissingFolderAndMakesNone) {
  EXPECT_THROW(phone->folder.replace("/missing/file", "new"), std::system_error);
  EXPECT_FALSE(fs::exists(host("/missing")));
}

TEST_F(PhoneFolderReplace, ReplacesAFifoByAFileWithoutWaiting) {
  ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
  phone->folder.replace(path, "new");
  EXPECT_TRUE(fs::is_regular_file(file));
  EXPECT_EQ(bytesOf(file), "new");
}

class OddNames : public PhoneTest, public testing::WithParamInterface<std::string> {};

TEST_P(OddNames, AreWrittenReadListedAndRemovedAsTheyAre) {
  const std::string odd = "/var/" + GetParam();
  phone->folder.replace(odd, "bytes");
  EXPECT_EQ(phone->folder.read(odd), "bytes");
  EXPECT_EQ(namesIn(host("/var")), (std::vector<std::string>{"mobile", GetParam()}));
  phone->folder.remove(odd);
  EXPECT_EQ(namesIn(host("/var")), std::vector<std::string>{"mobile"});
}

INSTANTIATE_TEST_SUITE_P(PhoneFolder, OddNames,
                         testing::Values("nice buttons", "new\nline", "quo\"te'", "perc%40ent",
                                         "so\xcc\x88lid", "not\xff\xfeutf8", "~tilde", "star*?[x]",
                                         "p;pe|&$(x)", std::string(255, 'z')));

TEST_F(PhoneFolderReplace, RemovesAFile) {
  writeBytes(file, "old");
  phone->folder.remove(path);
  EXPECT_EQ(names(), std::vector<std::string>{});
}

TEST_F(PhoneFolderReplace, RemovesNothingWhereThereIsNoFile) {
  EXPECT_NO_THROW(phone->folder.remove(path));
}

TEST_F(PhoneFolderReplace, DoesNotRemoveAFolder) {
  fs::create_directory(file);
  EXPECT_THROW(phone->folder.remove(path), std::system_error);
  EXPECT_TRUE(fs::is_directory(file));
}

}  // namespace
}  // namespace desktop_tests
