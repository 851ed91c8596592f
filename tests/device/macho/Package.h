#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include "tests/device/macho/Archive.h"
#include "tests/device/macho/Build.h"
#include "tests/device/macho/Command.h"

namespace phone_tests {

/// What a package has to be for one layout of a jailbreak's files.
struct Packaging {
  std::string layout;
  std::string prefix;  ///< Of the paths in the package.
  std::string architecture;
  std::string depends;  ///< What it needs, as dpkg reads it.
};
inline std::ostream& operator<<(std::ostream& out, const Packaging& packaging) {
  return out << packaging.layout;
}

/// The built package, for each layout.
class Package : public testing::TestWithParam<Packaging> {
 protected:
  std::string field(const std::string& name) const {
    const std::string text = output({"dpkg-deb", "--field", path.string(), name});
    return text.substr(0, text.find_last_not_of('\n') + 1);
  }

  Archive files() const { return Archive(output({"dpkg-deb", "--fsys-tarfile", path.string()})); }
  Archive control() const { return Archive(output({"dpkg-deb", "--ctrl-tarfile", path.string()})); }

  const std::filesystem::path path =
      packages() / ("com.orvalen.quillmere.settings_1.0.0_" + GetParam().architecture + ".deb");
};

}  // namespace phone_tests
