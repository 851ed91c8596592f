#pragma once

#include <cerrno>
#include <filesystem>
#include <iterator>
#include <sys/wait.h>

namespace desktop_tests {

/// Whether this program has a child, running or not yet collected.
inline bool hasChildren() {
  siginfo_t child{};
  return waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0 || errno != ECHILD;
}

/// How many descriptors this program has open.
inline auto openDescriptors() {
  const std::filesystem::directory_iterator entries("/proc/self/fd");
  return std::distance(begin(entries), end(entries));
}

}  // namespace desktop_tests
