#pragma once

#include <filesystem>
#include <ostream>
#include <vector>

namespace desktop_tests {

/// Something in the place of a preferences file that is no dictionary that can be read.
struct BadFile {
  const char* name;
  void (*make)(const std::filesystem::path& file);
};

inline std::ostream& operator<<(std::ostream& out, const BadFile& bad) { return out << bad.name; }

const std::vector<BadFile>& badFiles();

}  // namespace desktop_tests
