#include <gtest/gtest.h>

#include "tests/device/macho/Build.h"
#include "tests/device/macho/Command.h"
#include "tests/support/TemporaryFolder.h"

namespace phone_tests {
namespace {

TEST(SecondBuild, IsIdenticalInAnotherFolder) {
  const support::TemporaryFolder folder;
  // Other libraries of this machine have no place on a phone.
  output({"-u", "LIBRARY_PATH", "cmake", "-S", project(), "--preset", "device", "-B", folder.path});
  output({"-u", "LIBRARY_PATH", "cmake", "--build", folder.path, "--parallel", "2", "--target",
          "quillmere_rootful", "quillmere_rootless"});
  for (const char* layout : {"rootful", "rootless"}) {
    EXPECT_TRUE(contents(folder.path / layout / "Quillmere") == contents(executable(layout)))
        << layout;
  }
}

}  // namespace
}  // namespace phone_tests
