#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace fuzz {

/// The bytes of an input as text.
inline std::string_view view(const std::uint8_t* bytes, std::size_t size) {
  return {reinterpret_cast<const char*>(bytes), size};
}

/// The parts of `text` between the marks; the one after the last mark only when there is something
/// in it.
inline std::vector<std::string_view> split(std::string_view text, char mark) {
  std::vector<std::string_view> parts;
  while (!text.empty()) {
    const std::size_t end = text.find(mark);
    parts.push_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return parts;
}

}  // namespace fuzz
