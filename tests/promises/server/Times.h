#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace promises {

using Clock = std::chrono::steady_clock;

/// How long something took, again and again.
class Times {
 public:
  void add(Clock::duration time) { times_.push_back(time); }
  void addSince(Clock::time_point start) { add(Clock::now() - start); }
  std::size_t count() const { return times_.size(); }

  /// The time that 99 in 100 did not exceed, and the longest, in milliseconds; 0 for none.
  double p99() const { return at(0.99); }
  double longest() const { return at(1); }

  /// "p99 1.3 ms, longest 8.2 ms, of 12,345".
  std::string text() const;

 private:
  double at(double share) const;

  std::vector<Clock::duration> times_;
};

}  // namespace promises
