#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/program/Program.h"

namespace program_tests {
namespace {

namespace fs = std::filesystem;

class RootFolder : public testing::Test {
 protected:
  /// Starts the program, stops it again and gives its end.
  static End visit(const Start& start) {
    Program program(start);
    program.firstLine();
    program.signal(SIGTERM);
    return program.end();
  }

  void expectRefused(const Start& start, const std::string& part) const {
    const End end = run(start);
    EXPECT_EQ(end.exitCode, 1);
    EXPECT_EQ(end.out, "");
    EXPECT_TRUE(end.err.starts_with("quillmere-settings: ")) << end.err;
    EXPECT_EQ(std::ranges::count(end.err, '\n'), 1) << end.err;
    EXPECT_NE(end.err.find(part), std::string::npos) << end.err;
  }

  static bool isPhone(const fs::path& path) {
    return fs::exists(path / "Library/PreferenceLoader/Preferences/Quillmere.plist");
  }

  const support::TemporaryFolder folder;
};

TEST_F(RootFolder, IsMadeWhenOnlyItsLastPartIsMissing) {
  EXPECT_EQ(visit({{"--root", (folder.path / "new").string()}}).exitCode, 0);
  EXPECT_TRUE(isPhone(folder.path / "new"));
}

TEST_F(RootFolder, MayHaveAnOddName) {
  const fs::path odd = folder.path / "näme with \"quotes\"\nand a line";
  EXPECT_EQ(visit({{"--root", odd.string()}}).exitCode, 0);
  EXPECT_TRUE(isPhone(odd));
}

TEST_F(RootFolder, ThatIsAFileIsRefused) {
  std::ofstream(folder.path / "file") << "mine";
  expectRefused({{"--root", (folder.path / "file").string()}}, "is not a folder");
}

TEST_F(RootFolder, BelowAFileIsRefused) {
  std::ofstream(folder.path / "file") << "mine";
  expectRefused({{"--root", (folder.path / "file/below").string()}}, "Not a directory");
}

TEST_F(RootFolder, BelowAMissingFolderIsRefusedAndNotMade) {
  expectRefused({{"--root", (folder.path / "missing/below").string()}}, "cannot be made");
  EXPECT_FALSE(fs::exists(folder.path / "missing"));
}

TEST_F(RootFolder, ThatMayNotBeWrittenIsRefused) {
  fs::permissions(folder.path, fs::perms::owner_read | fs::perms::owner_exec |
                                   fs::perms::others_read | fs::perms::others_exec);
  Start start{{"--root", folder.path.string()}};
  start.unprivileged = true;
  expectRefused(start, "is not writable");
  fs::permissions(folder.path, fs::perms::owner_all);
  EXPECT_TRUE(fs::is_empty(folder.path));
}

TEST_F(RootFolder, ThatMayNotBeMadeIsRefused) {
  fs::permissions(folder.path, fs::perms::owner_read | fs::perms::owner_exec |
                                   fs::perms::others_read | fs::perms::others_exec);
  Start start{{"--root", (folder.path / "new").string()}};
  start.unprivileged = true;
  expectRefused(start, "cannot be made");
  fs::permissions(folder.path, fs::perms::owner_all);
}

TEST_F(RootFolder, ThatMayNotBeReachedIsRefused) {
  fs::create_directory(folder.path / "closed");
  fs::permissions(folder.path / "closed", fs::perms::none);
  Start start{{"--root", (folder.path / "closed/phone").string()}};
  start.unprivileged = true;
  expectRefused(start, "closed/phone");
  fs::permissions(folder.path / "closed", fs::perms::owner_all);
}

TEST_F(RootFolder, IsInTheDataFolderByDefault) {
  const End end = visit({{}, {{"XDG_DATA_HOME", folder.path.string()}, {"HOME", "/nowhere"}}});
  EXPECT_EQ(end.exitCode, 0) << end.err;
  EXPECT_TRUE(isPhone(folder.path / "quillmere/phone"));
}

TEST_F(RootFolder, IsBelowHomeWithoutADataFolder) {
  const End end = visit({{}, {{"XDG_DATA_HOME", std::nullopt}, {"HOME", folder.path.string()}}});
  EXPECT_EQ(end.exitCode, 0) << end.err;
  EXPECT_TRUE(isPhone(folder.path / ".local/share/quillmere/phone"));
}

TEST_F(RootFolder, CannotBeToldWithoutEither) {
  expectRefused({{}, {{"XDG_DATA_HOME", std::nullopt}, {"HOME", std::nullopt}}}, "--root");
}

TEST_F(RootFolder, WithABrokenLoaderEntryOfAnotherBundleIsServedWithAReport) {
  fs::create_directories(folder.path / "Library/PreferenceLoader/Preferences");
  std::ofstream(folder.path / "Library/PreferenceLoader/Preferences/Bad.plist") << "broken";
  const End end = visit({{"--root", folder.path.string()}});
  EXPECT_EQ(end.exitCode, 0);
}

TEST_F(RootFolder, TakesAtItsStartWhatAnEarlierRunKeptBesideABadFile) {
  const fs::path preferences = folder.path / "var/mobile/Library/Preferences";
  fs::create_directories(preferences);
  std::ofstream(preferences / "com.orvalen.quillmere.plist.pending")
      << "<plist><dict><key>set</key><dict><key>colorMode</key><integer>2</integer></dict>"
         "<key>removed</key><dict/></dict></plist>";
  const End end = visit({{"--root", folder.path.string()}});
  EXPECT_NE(end.err.find("took the changes"), std::string::npos) << end.err;
  EXPECT_TRUE(fs::exists(preferences / "com.orvalen.quillmere.plist"));
  EXPECT_FALSE(fs::exists(preferences / "com.orvalen.quillmere.plist.pending"));
}

TEST_F(RootFolder, WithABadPreferencesFileIsServedAndTheFileLeft) {
  const fs::path preferences = folder.path / "var/mobile/Library/Preferences";
  fs::create_directories(preferences);
  std::ofstream(preferences / "com.orvalen.quillmere.plist") << "bad";
  const End end = visit({{"--root", folder.path.string()}});
  EXPECT_EQ(end.exitCode, 0) << end.err;
  EXPECT_EQ(fs::file_size(preferences / "com.orvalen.quillmere.plist"), 3U);
}

TEST_F(RootFolder, WithAFileWhereAFolderBelongsIsRefused) {
  std::ofstream(folder.path / "Library") << "mine";
  expectRefused({{"--root", folder.path.string()}}, "/Library");
}

}  // namespace
}  // namespace program_tests
