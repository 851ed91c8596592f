#pragma once

#include <filesystem>

namespace support {

/// A new empty folder, deleted with all its contents at the end.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  const std::filesystem::path path;
};

}  // namespace support
