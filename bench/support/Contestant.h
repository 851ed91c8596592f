#pragma once

#include <concepts>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <span>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace bench {

/// What is timed.
struct Trial {
  /// Timed as a whole: what it takes to do it many times over.
  template <std::invocable Operation>
  Trial(Operation once) : operation(std::move(once)) {}

  /// `before` is done ahead of each operation and is outside the time taken.
  Trial(std::function<void()> prepared, std::function<void()> once)
      : before(std::move(prepared)), operation(std::move(once)) {}

  std::function<void()> before;
  std::function<void()> operation;
};

/// One thing that a contestant can do. `prepare` makes ready in `folder`, which is empty and is all
/// that may be written to; `size` is what the race says it is (keys, files, pixels).
struct Case {
  std::string_view name;
  Trial (*prepare)(std::size_t size, const std::filesystem::path& folder);
};

/// Thrown by `prepare` when the contestant cannot run on this machine; says why.
struct Unavailable : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The whole of a contestant: `contestant CASE SIZE FOLDER` prepares, prints "ready", and then for
/// each number that it reads, a line each, does the operation so many times and prints how many
/// nanoseconds of wall clock that took. Answers the status to exit with: EX_UNAVAILABLE
/// (sysexits.h) for `Unavailable`, EX_USAGE for a case that is not listed, EX_SOFTWARE for any
/// other failure; each with a line on standard error.
int compete(int argc, char** argv, std::span<const Case> cases);

}  // namespace bench
