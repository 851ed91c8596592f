#pragma once

#include <cstddef>
#include <limits>
#include <span>
#include <string_view>
#include <vector>

namespace bench {

/// A program that takes part in a race.
struct Entry {
  /// What the table calls it.
  std::string_view name;
  /// Below the benchmarks' build folder; the program that is not there is "not here".
  std::string_view program;
  /// What it is asked to do; the race's name unless told otherwise.
  std::string_view task = {};
  /// Left out of races over more, where one operation would take seconds.
  std::size_t largest = std::numeric_limits<std::size_t>::max();
};

/// A race is run once for each of its sizes.
struct Distance {
  std::size_t size;
  /// How many times the limit's time ours may take; 0 when nothing is asked.
  double ratio = 0;
  /// How many nanoseconds ours may take; 0 when nothing is asked.
  double nanoseconds = 0;
};

/// One row of what is timed.
struct Race {
  std::string_view name;
  std::string_view what;
  std::vector<Distance> distances;
  Entry limit;
  Entry ours;
  std::vector<Entry> peers = {};
  /// Whether ours has to be ahead of every peer.
  bool first = false;
};

/// All of them.
std::span<const Race> races();

}  // namespace bench
