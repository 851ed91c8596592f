#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bench/runner/Result.h"

namespace bench {

/// What is no race: a program that prints its results as lines of JSON (`toJson`).
struct Measure {
  std::string_view name;
  std::string_view what;
  /// The program and its arguments, looked for in PATH and from the project's folder on.
  std::vector<std::string> command;
};

/// All of them.
std::span<const Measure> measures();

/// Runs the program and hands on each of its results as it comes. Throws `std::runtime_error` when
/// it fails or prints something else.
void run(const Measure& measure, const std::function<void(const Result&)>& found);

}  // namespace bench
