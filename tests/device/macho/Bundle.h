#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include "tests/device/macho/Build.h"

namespace phone_tests {

/// A layout of a jailbreak's files.
struct Layout {
  std::string name;
  std::string cephei;  ///< Where the install names of Cephei's libraries begin.
  std::string prefix;  ///< Of the paths of whatever else the jailbreak adds: "" or "/var/jb".
};
inline std::ostream& operator<<(std::ostream& out, const Layout& layout) {
  return out << layout.name;
}

/// The built bundle's executable, for each layout.
class Bundle : public testing::TestWithParam<Layout> {
 protected:
  const std::filesystem::path file = executable(GetParam().name);
};

}  // namespace phone_tests
