#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/program/Connection.h"
#include "tests/support/program/Program.h"

namespace program_tests {

/// The program over a new phone folder, and the cookie that its invitation gave. At the end the
/// program has to answer still, and to end well.
class RunningProgram : public testing::Test {
 protected:
  RunningProgram();
  void TearDown() override;

  /// A GET of that path with the cookie; the whole response.
  std::string get(const std::string& path) const;

  /// The text with {HOST}, {ORIGIN}, {COOKIE} and {TOKEN} replaced by what is right.
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
  const std::string host = "127.0.0.1:" + std::to_string(port);
  std::string cookie;
};

}  // namespace program_tests
