#include "tests/support/Figures.h"

#include <cstdlib>
#include <fstream>

namespace support {

bool isLong() {
  const char* const set = std::getenv("QUILLMERE_LONG");
  return set && std::string_view(set) == "1";
}

std::string grouped(std::uint64_t number) {
  std::string text = std::to_string(number);
  for (std::size_t end = text.size(); end > 3; end -= 3) text.insert(end - 3, 1, ',');
  return text;
}

void note(std::string_view what, std::string_view figure, std::string_view promised) {
  const char* const table = std::getenv("QUILLMERE_FIGURES");
  if (!table) return;
  std::string line;
  for (const std::string_view part : {what, figure, promised}) line.append(part) += '\t';
  line.back() = '\n';
  std::ofstream(table, std::ios::app) << line << std::flush;
}

}  // namespace support
