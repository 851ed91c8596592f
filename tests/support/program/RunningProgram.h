#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/program/Connection.h"
#include "tests/support/program/Pass.h"
#include "tests/support/program/Program.h"

namespace program_tests {

/// The program over a new phone folder, which has let a browser in. At the end the
/// program has to answer still, and to end well.
class RunningProgram : public testing::Test {
 protected:
  void TearDown() override;

  /// A GET of that path below the home with the cookie; the whole response.
  std::string get(const std::string& path) const;

  /// The text with {HOST}, {ORIGIN}, {COOKIE}, {HOME} and {TOKEN} replaced by what is right.
  std::string filled(std::string text) const;

  std::filesystem::path preferences() const {
    return folder.path / "var/mobile/Library/Preferences/com.orvalen.quillmere.plist";
  }

  const support::TemporaryFolder folder;
  /// A system from before the welcome screen, which would cover the page.
  const std::vector<std::string> arguments{"--root", folder.path.string(), "--ios-version", "12.4"};
  Program program{{arguments}};
  const std::uint16_t port = program.port();
  const std::string invitation = program.invitation();
  const Pass pass = letIn(port, invitation);
};

}  // namespace program_tests
