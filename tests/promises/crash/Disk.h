#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace crash_tests {

/// A file system in a file, which loses its power when told to.
class Disk {
 public:
  /// `type` is "ext4" or "xfs". Throws std::runtime_error where none can be mounted: not as root,
  /// or on a machine without loop devices.
  explicit Disk(const std::string& type);
  Disk(const Disk&) = delete;
  Disk& operator=(const Disk&) = delete;
  ~Disk();

  /// Where the file system is to be found.
  const std::filesystem::path& path() const { return mounted_; }

  /// Has all that was written reach the disk.
  void sync() const;

  /// What a journal holds that was not written to the disk when the power goes.
  enum class Journal : std::uint32_t { Kept = 1, Lost = 2 };

  /// Nothing more reaches the disk; then the power is back, and what the disk holds is mounted.
  void cutPower(Journal journal);

 private:
  void mount() const;
  void unmount() const;

  const std::string type_;
  const support::TemporaryFolder folder_;
  const std::filesystem::path mounted_ = folder_.path / "mounted";
  int device_ = -1;
  std::string deviceName_;
};

}  // namespace crash_tests
