#pragma once

#include <cstdio>
#include <cstdlib>

namespace fuzz {

/// Ends the run, as a crash does, where `holds` is false.
inline void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

}  // namespace fuzz
