#include "tests/settings/PhoneScreenTest.h"

#include <charconv>

namespace settings_tests {

std::string PhoneScreenTest::shifted(std::string_view text, int by) {
  constexpr std::string_view word = "page";
  std::string result;
  for (auto at = text.find(word); at != std::string_view::npos; at = text.find(word)) {
    result += text.substr(0, at + word.size());
    text.remove_prefix(at + word.size());
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) continue;
    result += std::to_string(number + by);
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  }
  return result += text;
}

}  // namespace settings_tests
