#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/TemporaryFolder.h"

namespace phone_tests {

/// A member of an archive as tar lists it.
struct Member {
  std::string mode;   ///< With the type, as in "-rw-r--r--".
  std::string owner;  ///< Numbers, as in "0/0".
  std::string time;   ///< UTC, as in "2026-01-01 00:00:00".
  std::string name;   ///< From "./" on; for a link with what it leads to.

  bool isFolder() const { return mode.front() == 'd'; }
};

/// A tar archive in a file of its own.
class Archive {
 public:
  explicit Archive(const std::string& bytes);

  std::vector<Member> members() const;

  /// The bytes of the file of that name.
  std::string file(const std::string& name) const;

 private:
  support::TemporaryFolder folder_;
  std::filesystem::path path_ = folder_.path / "archive.tar";
};

}  // namespace phone_tests
