#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace support {

/// What was asked of the platform, one line a message.
using Lines = std::vector<std::string>;

/// From the first line `from` to the next line `to`, both included; empty when one is missing.
inline Lines between(const Lines& journal, const std::string& from, const std::string& to) {
  const auto first = std::ranges::find(journal, from);
  const auto last = std::find(first, journal.end(), to);
  return last == journal.end() ? Lines() : Lines(first, last + 1);
}

/// From the last line `from` to the end; empty when it is missing.
inline Lines since(const Lines& journal, const std::string& from) {
  const auto last = std::find(journal.rbegin(), journal.rend(), from);
  return last == journal.rend() ? Lines() : Lines(last.base() - 1, journal.end());
}

}  // namespace support
