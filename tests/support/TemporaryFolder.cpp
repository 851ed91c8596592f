#include "tests/support/TemporaryFolder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace support {

namespace {

std::filesystem::path makeFolder() {
  std::string name = std::filesystem::temp_directory_path() / "quillmere-test-XXXXXX";
  if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder can be made");
  return name;
}

}  // namespace

TemporaryFolder::TemporaryFolder() : path(makeFolder()) {}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path, ignored);
}

}  // namespace support
