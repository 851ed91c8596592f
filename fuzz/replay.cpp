#include <cstdint>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <string>

#include "fuzz/Require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::string bytesOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// Tries the input, which may take a second of the processor at most.
void replay(const std::string& bytes) {
  const std::clock_t start = std::clock();
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  fuzz::require(std::clock() - start < CLOCKS_PER_SEC, "that took more than a second");
}

/// The files of a folder; none of one that is missing.
std::set<fs::path> filesIn(const fs::path& folder) {
  if (!fs::exists(folder)) return {};
  return {fs::directory_iterator(folder), {}};
}

}  // namespace

/// In a fuzzer's place: tries the files of the folders that it is given, in the order of their
/// names, so that what was found once is tried by every test run, whatever the compiler.
int main(int count, char** arguments) {
  std::size_t tried = 0;
  for (int i = 1; i < count; ++i) {
    for (const fs::path& file : filesIn(arguments[i])) {
      std::cout << file.string() << std::endl;  // The last one is the one that crashed.
      replay(bytesOf(file));
      ++tried;
    }
  }
  fuzz::require(tried > 0, "there is nothing to try");
  std::cout << tried << " inputs" << std::endl;
}
