#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace bench {

/// One line of the table.
struct Result {
  std::string race;
  std::size_t size = 0;
  std::string contestant;
  /// Of `median`: "ns", "bytes", "count" or "frames"; "absent" when it cannot run here.
  std::string unit = "ns";
  double median = 0;
  /// How many times the limit's, as the median of all rounds; none when there is no limit.
  std::optional<double> ratio;
  /// The least and the greatest of the rounds' ratios.
  std::optional<double> lowest;
  std::optional<double> highest;
  /// What is asked of it, in words; empty when nothing is.
  std::string must;
  /// Whether it holds; none when nothing is asked.
  std::optional<bool> holds;
};

/// With as many digits as are worth reading: two behind the point below ten, one below a hundred.
std::string rounded(double number);

/// As one line of JSON, with the members' names as keys and null for none.
std::string toJson(const Result& result);

/// Reads such a line. Throws `std::invalid_argument` for what is none.
Result fromJson(std::string_view line);

}  // namespace bench
