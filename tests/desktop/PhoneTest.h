#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/Phone.h"
#include "plist/Document.h"
#include "tests/support/TemporaryFolder.h"

namespace desktop_tests {

/// Gives up root's privileges for as long as it lives, since no file mode binds root.
class Unprivileged {
 public:
  explicit Unprivileged(const std::filesystem::path& ownFolder);
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;
  ~Unprivileged() { end(); }

  /// Takes them back earlier.
  void end() const;
};

void writeBytes(const std::filesystem::path& file, std::string_view bytes);
std::string bytesOf(const std::filesystem::path& file);

/// The names in a folder of this computer, sorted.
std::vector<std::string> namesIn(const std::filesystem::path& folder);

/// What a test would see change of a file, a folder, a FIFO or a link: its type, inode, mode, time
/// and, where they can be read, its bytes.
std::string portrait(const std::filesystem::path& file);

/// A phone that is switched on over a new folder, with a preferences folder in it.
class PhoneTest : public testing::Test {
 protected:
  static constexpr const char* domain = "com.example.addon";
  static constexpr const char* path = "/var/mobile/Library/Preferences/com.example.addon.plist";

  PhoneTest();
  ~PhoneTest() override;

  /// The place of a path of the phone on this computer.
  std::filesystem::path host(std::string_view phonePath) const;

  /// Switches the phone off and on again.
  void restart();

  /// Puts a dictionary of one key into the preferences file.
  void storeOne(const char* key, int value, plist::Form form = plist::Form::Binary);
  plist::Document stored() const { return plist::read(bytesOf(file)); }

  bool reported(std::string_view part) const;

  const support::TemporaryFolder folder;
  const Unprivileged unprivileged{folder.path};
  const std::filesystem::path file;
  const std::filesystem::path pendingFile;
  std::vector<std::string> reports;
  std::optional<desktop::Phone> phone;
};

}  // namespace desktop_tests
