#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <sys/stat.h>

#include "desktop/PhoneFolder.h"
#include "settings/Asset.h"
#include "settings/PhoneSetup.h"
#include "tests/support/TemporaryFolder.h"

namespace settings_tests {
namespace {

namespace fs = std::filesystem;

class PhoneSetupTest : public testing::Test {
 protected:
  void setUp() const { settings::setUpPhone(desktop::PhoneFolder(folder.path)); }
  fs::path host(std::string_view path) const { return folder.path / path.substr(1); }

  static std::string bytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  static void writeBytes(const fs::path& file, const std::string& bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
  }

  /// Everything in the folder: inode and time, by path.
  std::map<std::string, std::pair<ino_t, std::int64_t>> contents() const {
    std::map<std::string, std::pair<ino_t, std::int64_t>> all;
    for (const auto& entry : fs::recursive_directory_iterator(folder.path)) {
      struct stat status {};
      EXPECT_EQ(lstat(entry.path().c_str(), &status), 0);
      if (entry.is_directory() && !entry.is_symlink()) status.st_mtim = {};
      all[entry.path()] = {status.st_ino,
                           status.st_mtim.tv_sec * 1'000'000'000 + status.st_mtim.tv_nsec};
    }
    return all;
  }

  void expectBundle() const {
    ASSERT_FALSE(settings::bundleFiles().empty());
    for (const settings::Asset& file : settings::bundleFiles()) {
      EXPECT_EQ(bytesOf(host(file.path)), file.bytes) << file.path;
    }
  }

  const support::TemporaryFolder folder;
};

TEST_F(PhoneSetupTest, MakesAnInterruptedFirstStartGood) {
  setUp();
  const auto whole = contents();
  for (const settings::Asset& file : settings::sampleFiles()) fs::remove(host(file.path));
  fs::create_symlink(".", host("/.quillmere-unfinished"));
  setUp();
  for (const settings::Asset& file : settings::sampleFiles()) {
    EXPECT_EQ(bytesOf(host(file.path)), file.bytes) << file.path;
  }
  EXPECT_EQ(contents().size(), whole.size()) << "and leaves nothing behind";
}

TEST_F(PhoneSetupTest, DeletesWhatInterruptedWritesLeftEverywhere) {
  setUp();
  fs::create_directories(host("/var/mobile/Library/Mail/Outbox"));
  const auto before = contents();
  for (const char* path :
       {"/Library/PreferenceBundles/Quillmere.bundle/", "/Library/PreferenceLoader/Preferences/",
        "/Library/Lotties/Quillmere/", "/System/Library/CoreServices/",
        "/var/mobile/Library/Mail/Outbox/", "/var/mobile/Library/Preferences/"}) {
    writeBytes(host(std::string(path) + ".quillmere-aside-1"), "half");
  }
  settings::sweepPhone(desktop::PhoneFolder(folder.path));
  EXPECT_EQ(contents(), before);
}

TEST_F(PhoneSetupTest, LaysANewFolderOut) {
  setUp();
  expectBundle();
  EXPECT_TRUE(fs::is_directory(host("/var/mobile/Library/Preferences")));
  EXPECT_TRUE(fs::is_empty(host("/var/mobile/Library/Preferences")));
  EXPECT_TRUE(fs::equivalent(host("/User"), host("/var/mobile")));
}

TEST_F(PhoneSetupTest, GivesANewFolderTheSamples) {
  setUp();
  ASSERT_FALSE(settings::sampleFiles().empty());
  for (const settings::Asset& sample : settings::sampleFiles()) {
    EXPECT_EQ(bytesOf(host(sample.path)), sample.bytes) << sample.path;
    const bool isAnimation = sample.path.ends_with(".lottie");
    EXPECT_TRUE(sample.bytes.starts_with(isAnimation ? "PK" : "<?xml")) << sample.path;
  }
}

TEST_F(PhoneSetupTest, ChangesNothingTheSecondTime) {
  setUp();
  const auto before = contents();
  setUp();
  EXPECT_EQ(contents(), before);
}

TEST_F(PhoneSetupTest, DoesNotBringBackSamplesThatTheUserDeleted) {
  setUp();
  const fs::path sample = host(settings::sampleFiles()[0].path);
  fs::remove(sample);
  setUp();
  EXPECT_FALSE(fs::exists(sample));
}

TEST_F(PhoneSetupTest, BringsTheBundlesFilesUpToDate) {
  setUp();
  for (const settings::Asset& file : settings::bundleFiles()) writeBytes(host(file.path), "old");
  setUp();
  expectBundle();
}

TEST_F(PhoneSetupTest, LeavesAFolderThatWasCopiedFromAPhone) {
  fs::create_directories(host("/private/var/mobile/Library/Preferences"));
  fs::create_directory_symlink("private/var", host("/var"));
  fs::create_directory_symlink("/var/mobile", host("/User"));
  writeBytes(host("/private/var/mobile/Library/Preferences/com.orvalen.quillmere.plist"), "mine");
  writeBytes(host("/Library/PreferenceLoader/Preferences/Other.plist"), "other");
  writeBytes(host("/Library/PreferenceBundles/Quillmere.bundle/defaults.plist"), "defaults");
  const auto before = contents();
  setUp();

  expectBundle();
  const auto after = contents();
  for (const auto& [path, facts] : before) {
    ASSERT_TRUE(after.contains(path)) << path;
    EXPECT_EQ(after.at(path), facts) << path;
  }
  std::vector<std::string> added;
  for (const auto& [path, facts] : after) {
    if (!before.contains(path) && !fs::is_directory(path)) {
      added.push_back(path.substr(folder.path.native().size()));
    }
  }
  std::vector<std::string> bundle;
  for (const auto& file : settings::bundleFiles()) bundle.emplace_back(file.path);
  EXPECT_THAT(added, testing::UnorderedElementsAreArray(bundle));
}

TEST_F(PhoneSetupTest, ReachesThePreferencesThroughAPhonesOwnLinks) {
  fs::create_directories(host("/private/var/mobile"));
  fs::create_directory_symlink("/private/var", host("/var"));
  fs::create_directory_symlink("/var/mobile", host("/User"));
  setUp();
  const desktop::PhoneFolder phone(folder.path);
  phone.replace("/User/Library/Preferences/a.plist", "bytes");
  EXPECT_EQ(bytesOf(host("/private/var/mobile/Library/Preferences/a.plist")), "bytes");
}

TEST_F(PhoneSetupTest, WritesNothingThroughALinkOutOfTheFolder) {
  const support::TemporaryFolder outside;
  fs::create_directory_symlink(outside.path, host("/Library"));
  EXPECT_THROW(setUp(), std::system_error);
  EXPECT_TRUE(fs::is_empty(outside.path));
}

TEST_F(PhoneSetupTest, RefusesACopyInWhichUserIsAFolderOfItsOwn) {
  fs::create_directories(host("/User/Library/Preferences"));
  EXPECT_THROW(setUp(), std::runtime_error);
}

TEST_F(PhoneSetupTest, RequiresAFolder) {
  writeBytes(host("/file"), "");
  EXPECT_NO_THROW(settings::requireFolder(folder.path));
  EXPECT_THROW(settings::requireFolder(host("/file")), std::runtime_error);
  EXPECT_THROW(settings::requireFolder(host("/file/below")), std::runtime_error);
  EXPECT_THROW(settings::requireFolder(host("/missing/below")), std::runtime_error);
  EXPECT_FALSE(fs::exists(host("/missing")));
}

TEST_F(PhoneSetupTest, MakesTheLastFolderOfAPath) {
  settings::requireFolder(host("/new"));
  EXPECT_TRUE(fs::is_directory(host("/new")));
}

class DefaultPhoneFolder : public testing::Test {
 protected:
  ~DefaultPhoneFolder() override { set(before_); }

  using Variable = std::pair<const char*, std::optional<std::string>>;
  static void set(const std::vector<Variable>& variables) {
    for (const auto& [name, value] : variables) {
      value ? setenv(name, value->c_str(), 1) : unsetenv(name);
    }
  }

 private:
  static std::optional<std::string> now(const char* name) {
    const char* value = std::getenv(name);
    return value ? std::optional<std::string>(value) : std::nullopt;
  }
  const std::vector<Variable> before_{{"XDG_DATA_HOME", now("XDG_DATA_HOME")},
                                      {"HOME", now("HOME")}};
};

TEST_F(DefaultPhoneFolder, StandsInTheDataFolder) {
  set({{"XDG_DATA_HOME", "/data"}, {"HOME", "/home/me"}});
  EXPECT_EQ(settings::defaultPhoneFolder(), "/data/quillmere/phone");
}

TEST_F(DefaultPhoneFolder, StandsInTheUsualDataFolderOtherwise) {
  for (const std::optional<std::string>& data :
       std::initializer_list<std::optional<std::string>>{std::nullopt, "", "relative/data"}) {
    set({{"XDG_DATA_HOME", data}, {"HOME", "/home/me"}});
    EXPECT_EQ(settings::defaultPhoneFolder(), "/home/me/.local/share/quillmere/phone");
  }
}

TEST_F(DefaultPhoneFolder, CannotBeToldWithoutEither) {
  set({{"XDG_DATA_HOME", std::nullopt}, {"HOME", std::nullopt}});
  EXPECT_THROW(settings::defaultPhoneFolder(), std::runtime_error);
}

}  // namespace
}  // namespace settings_tests
