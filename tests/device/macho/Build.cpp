#include "tests/device/macho/Build.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace phone_tests {

std::filesystem::path project() { return QUILLMERE_PROJECT; }

std::filesystem::path packages() { return QUILLMERE_PACKAGES; }

std::filesystem::path executable(const std::string& layout) {
  return project() / "build/device" / layout / "Quillmere";
}

std::string contents(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error(file.string() + " cannot be read");
  return std::string(std::istreambuf_iterator(stream), {});
}

}  // namespace phone_tests
