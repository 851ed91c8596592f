#include <filesystem>
#include <iostream>
#include <string>

#include "bench/runner/Result.h"

/// How large the phone's bundle is, as ./build-device has made it.
namespace {

constexpr double allowed = 250'000;

bench::Result sizeOf(const std::string& layout) {
  const std::filesystem::path file =
      std::filesystem::path(QUILLMERE_BUNDLES) / layout / "Quillmere";
  bench::Result result;
  result.race = "bundle-size";
  result.contestant = layout;
  result.unit = "absent";
  result.must = "at most 250 KB";
  std::error_code error;
  const auto bytes = std::filesystem::file_size(file, error);
  if (error) return result;  // Not built.
  result.unit = "bytes";
  result.median = static_cast<double>(bytes);
  result.holds = result.median <= allowed;
  return result;
}

}  // namespace

int main() {
  for (const char* layout : {"rootful", "rootless"}) {
    std::cout << toJson(sizeOf(layout)) << std::endl;
  }
}
