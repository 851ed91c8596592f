#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "plist/Document.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/program/Program.h"

namespace program_tests {

/// A new phone folder that sub-commands work on.
class SubCommands : public testing::Test {
 protected:
  SubCommands();

  /// The program's run with those arguments behind the phone's folder.
  End at(std::vector<std::string> arguments) const { return run(startAt(std::move(arguments))); }
  Start startAt(std::vector<std::string> arguments) const;

  /// What a run prints that ends well and complains of nothing.
  std::string said(std::vector<std::string> arguments) const;
  nlohmann::json saidJson(std::vector<std::string> arguments) const;

  /// Expects a run to end with that code, to print nothing and to complain in these words.
  void expectRefused(std::vector<std::string> arguments, int code, const std::string& words) const;

  /// The bytes of the preferences file; none when there is none.
  std::optional<std::string> preferences() const;
  void writePreferences(const std::string& bytes) const;
  /// The value in it; none without a file or a key.
  std::optional<plist::Value> stored(const char* key) const;

  /// A command that notes its first argument, or the word "run", on a line of `noted()`.
  std::string noting() const;
  std::string noted() const;

  const support::TemporaryFolder folder;
  const std::filesystem::path phone = folder.path / "phone";
  const std::filesystem::path file =
      phone / "var/mobile/Library/Preferences/com.orvalen.quillmere.plist";
};

/// All that the file holds; none when there is none.
std::optional<std::string> contents(const std::filesystem::path& path);

}  // namespace program_tests
