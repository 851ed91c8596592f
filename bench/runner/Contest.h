#pragma once

#include <filesystem>
#include <functional>

#include "bench/runner/Races.h"
#include "bench/runner/Result.h"

namespace bench {

/// Where the contestants are and where they may write.
struct Ground {
  /// What the entries' programs are below.
  std::filesystem::path programs;
  /// On a real file system, so that what is synced is.
  std::filesystem::path scratch;
};

/// Runs a race over one distance: every contestant in its own process, in turn, in an order that
/// rotates from round to round, so that what else the machine does meets all alike. A round's ratio
/// is a contestant's time by the limit's in that round; what counts is the median of all rounds.
/// Throws `std::runtime_error` when ours or the limit does not run.
void run(const Race& race, const Distance& distance, const Ground& ground,
         const std::function<void(const Result&)>& found);

}  // namespace bench
