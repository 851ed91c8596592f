#include <algorithm>
#include <array>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "fuzz/Input.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* bytes, std::size_t size, std::size_t most);

namespace {

using Random = std::minstd_rand;

/// Messages of every kind; "#" stands for a number and "?" for true or false.
constexpr std::array<std::string_view, 16> messages = {
    R"({"kind":"tap","id":"{#}"})",
    R"({"kind":"tap","id":"{#}"})",
    R"({"kind":"tap","id":"{#}"})",
    R"({"kind":"tap","id":"{#}.control"})",
    R"({"kind":"toggle","id":"{#}","on":?})",
    R"({"kind":"toggle","id":"{#}","on":?,"inside":?})",
    R"({"kind":"slide","id":"{#}","value":#.#})",
    R"({"kind":"type","id":"{#}","text":"#.#"})",
    R"({"kind":"type","id":"{#}","text":"a@b.c, #"})",
    R"({"kind":"select","id":"{#}","index":#})",
    R"({"kind":"pick","id":"{#}","color":"#12ab3480"})",
    R"({"kind":"scroll","id":"{#}","y":#})",
    R"({"kind":"window","id":"{#}","first":#,"count":#})",
    R"({"kind":"drag","id":"{#}","section":#,"row":#})",
    R"({"kind":"type","id":"{#}","text":"\ud83d\ude00 \u0000"})",
    "wait",
};

std::size_t below(Random& random, std::size_t bound) { return random() % bound; }

std::string randomMessage(Random& random) {
  std::string text;
  for (const char each : messages[below(random, messages.size())]) {
    if (each == '#') {
      text += std::to_string(below(random, 40));
    } else if (each == '?') {
      text += below(random, 2) ? "true" : "false";
    } else {
      text += each;
    }
  }
  return text;
}

/// Adds, replaces, doubles or takes away a line.
std::string withChangedLines(std::string_view input, Random& random) {
  std::vector<std::string> lines;
  for (const std::string_view line : fuzz::split(input, '\n')) lines.emplace_back(line);
  const std::size_t place = below(random, lines.size() + 1);
  const bool isLine = place < lines.size();
  const auto at = lines.begin() + static_cast<std::ptrdiff_t>(place);
  const std::size_t choice = below(random, 6);
  if (!isLine || choice < 3) {
    lines.insert(at, randomMessage(random));
  } else if (choice == 3) {
    *at = randomMessage(random);
  } else if (choice == 4) {
    lines.insert(at, std::string(*at));
  } else {
    lines.erase(at);
  }
  std::string text;
  for (const std::string& line : lines) text += line + '\n';
  return text;
}

}  // namespace

/// Half of the time whole messages, which bytes at random hardly ever come to.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* bytes, std::size_t size,
                                               std::size_t most, unsigned int seed) {
  Random random(seed);
  if (below(random, 2)) return LLVMFuzzerMutate(bytes, size, most);
  const std::string text = withChangedLines(fuzz::view(bytes, size), random);
  const std::size_t taken = std::min(text.size(), most);
  std::memcpy(bytes, text.data(), taken);
  return taken;
}
