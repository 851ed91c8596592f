#pragma once

#include <atomic>
#include <cstdint>

namespace crash_tests {

/// What a program and its test share in memory, by the file that `variable` names.
struct AllocationCount {
  static constexpr const char* variable = "QUILLMERE_FAILING_ALLOCATION";

  std::atomic<std::uint64_t> made;     ///< Since main began, the failing one counted.
  std::atomic<std::uint64_t> failing;  ///< Which one gives null, from 1; none with 0.
};

}  // namespace crash_tests
