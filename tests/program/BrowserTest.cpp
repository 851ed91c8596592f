#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <thread>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/program/Program.h"

namespace program_tests {
namespace {

namespace fs = std::filesystem;

/// A desktop whose xdg-open notes what it is asked to open and which files it was given.
class Browser : public testing::Test {
 protected:
  Browser() {
    fs::create_directory(tools);
    std::ofstream(tools / "xdg-open")
        << "#!/bin/sh\n"
        << "ls -l /proc/$$/fd >'" << files.string() << "'\n"
        << "echo \"$1\" >'" << opened.string() << ".new'\n"
        << "mv '" << opened.string() << ".new' '" << opened.string() << "'\n";
    fs::permissions(tools / "xdg-open", fs::perms::owner_all);
  }

  Start start(std::map<std::string, std::optional<std::string>> environment,
              std::vector<std::string> more = {}) const {
    more.insert(more.begin(), {"--root", (folder.path / "phone").string()});
    environment["PATH"] = tools.string() + ":" + std::getenv("PATH");
    return {more, environment};
  }

  /// What was opened; empty when nothing was within that time.
  std::string waitForOpened(std::chrono::milliseconds time) const {
    const auto until = std::chrono::steady_clock::now() + time;
    while (!fs::exists(opened) && std::chrono::steady_clock::now() < until) {
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return textOf(opened);
  }

  static std::string textOf(const fs::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  const support::TemporaryFolder folder;
  const fs::path tools = folder.path / "tools";
  const fs::path opened = folder.path / "opened";
  const fs::path files = folder.path / "files";
};

TEST_F(Browser, OpensThePrintedAddressOnADisplay) {
  for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY"}) {
    Program program(start({{variable, ":99"}}));
    const std::string line = program.firstLine();
    EXPECT_EQ("Quillmere Settings: " + waitForOpened(std::chrono::seconds(10)), line + "\n");
    fs::remove(opened);
  }
}

TEST_F(Browser, IsGivenNoneOfTheProgramsSocketsAndFiles) {
  Program program(start({{"DISPLAY", ":99"}}));
  EXPECT_NE(waitForOpened(std::chrono::seconds(10)), "");
  const std::string given = textOf(files);
  EXPECT_NE(given.find("pipe:"), std::string::npos) << given;
  for (const char* kind : {"socket:", "anon_inode:", "phone"}) {
    EXPECT_EQ(given.find(kind), std::string::npos) << given;
  }
}

TEST_F(Browser, IsNotOpenedWithoutADisplay) {
  for (const std::optional<std::string>& display :
       {std::optional<std::string>(), std::optional<std::string>("")}) {
    Program program(start({{"DISPLAY", display}, {"WAYLAND_DISPLAY", display}}));
    EXPECT_NE(program.firstLine(), "");
    EXPECT_EQ(waitForOpened(std::chrono::milliseconds(500)), "");
  }
}

TEST_F(Browser, IsNotOpenedWhenTheUserSaysSo) {
  Program program(start({{"DISPLAY", ":99"}}, {"--no-open"}));
  EXPECT_NE(program.firstLine(), "");
  EXPECT_EQ(waitForOpened(std::chrono::milliseconds(500)), "");
}

TEST_F(Browser, IsNotMissedWhereThereIsNone) {
  fs::remove(tools / "xdg-open");
  Start bare = start({{"DISPLAY", ":99"}});
  bare.environment["PATH"] = tools.string();
  Program program(bare);
  EXPECT_NE(program.firstLine(), "");
  program.signal(SIGTERM);
  EXPECT_EQ(program.end().exitCode, 0);
}

}  // namespace
}  // namespace program_tests
