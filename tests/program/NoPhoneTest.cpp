#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/program/Program.h"

namespace program_tests {
namespace {

namespace fs = std::filesystem;

using Arguments = std::vector<std::string>;

/// Sub-commands where there is no phone yet.
class NoPhone : public testing::Test {
 protected:
  /// What each of the sub-commands that only read says, with those arguments before it.
  static void expectNone(const fs::path& phone, const Arguments& before, const Start& like = {}) {
    for (const Arguments& reading : std::initializer_list<Arguments>{
             {"list"}, {"get", "clockEnabled"}, {"lotties", "list", "--json"}}) {
      Start start = like;
      start.arguments = before;
      start.arguments.insert(start.arguments.end(), reading.begin(), reading.end());
      const End end = run(start);
      EXPECT_EQ(end.exitCode, 1) << reading[0];
      EXPECT_EQ(end.out, "") << reading[0];
      EXPECT_EQ(end.err, "quillmere-settings: there is no phone in " + phone.string() + "\n");
    }
  }

  const support::TemporaryFolder folder;
  const fs::path phone = folder.path / "phone";
  const Arguments atPhone{"--root", phone.string()};
};

TEST_F(NoPhone, IsMadeByWhatOnlyReads) {
  expectNone(phone, atPhone);
  EXPECT_FALSE(fs::exists(phone));
}

TEST_F(NoPhone, IsMadeOfAnEmptyFolderByWhatOnlyReads) {
  fs::create_directory(phone);
  expectNone(phone, atPhone);
  EXPECT_TRUE(fs::is_empty(phone));
}

TEST_F(NoPhone, IsMadeOfAnotherFolderByWhatOnlyReads) {
  fs::create_directory(phone);
  std::ofstream(phone / "mine") << "mine";
  expectNone(phone, atPhone);
  EXPECT_EQ(std::distance(fs::directory_iterator(phone), fs::directory_iterator()), 1);
}

TEST_F(NoPhone, IsFoundInAFile) {
  std::ofstream(phone) << "mine";
  expectNone(phone, atPhone);
  EXPECT_EQ(fs::file_size(phone), 4U);
}

TEST_F(NoPhone, IsInTheDefaultFolderBeforeTheFirstStart) {
  const Start start{{}, {{"XDG_DATA_HOME", folder.path.string()}}};
  expectNone(folder.path / "quillmere/phone", {}, start);
  EXPECT_TRUE(fs::is_empty(folder.path));
}

TEST_F(NoPhone, IsNeededByWhatChanges) {
  Arguments arguments = atPhone;
  arguments.insert(arguments.end(), {"set", "clockDigitSize", "80"});
  const End end = run({arguments});
  EXPECT_EQ(end.exitCode, 0);
  EXPECT_EQ(end.err, "quillmere-settings: made a new phone in " + phone.string() + "\n");
  arguments = atPhone;
  arguments.insert(arguments.end(), {"get", "clockDigitSize"});
  EXPECT_EQ(run({arguments}).out, "80\n");
}

}  // namespace
}  // namespace program_tests
