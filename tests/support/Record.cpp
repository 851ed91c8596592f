#include "tests/support/Record.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace support {

void record(const std::vector<std::string>& lines) {
  const char* folder = std::getenv("QUILLMERE_JOURNALS");
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  if (!folder || !test) return;
  std::string name = std::string(test->test_suite_name()) + '.' + test->name();
  std::ranges::replace(name, '/', '-');
  std::ofstream file(std::filesystem::path(folder) / name, std::ios::app);
  for (const std::string& line : lines) file << line << '\n';
}

}  // namespace support
