#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "tests/promises/crash/Rehearsal.h"

namespace crash_tests {

/// Which numbers of a kind of fault are tried: all of them in the full form; in the short form
/// about `count`, spread evenly, and others for each `turn`. `QUILLMERE_CRASH_POINT=N` has N alone
/// tried.
std::vector<std::size_t> chosen(const std::vector<std::size_t>& points, std::size_t count,
                                std::size_t turn);

/// The calls from the opening of the phone's folder on.
std::vector<std::size_t> callsInPhone(const Rehearsal& rehearsal);

/// The calls that the fault can strike.
std::vector<std::size_t> callsFor(const Fault& fault, const Rehearsal& rehearsal);

/// How many attempts go on at the same time: a reset waits for more than a second.
constexpr std::size_t workers = 8;

/// What came of all attempts.
class Tally {
 public:
  /// Has each point tried. What is wrong fails the test, the first times in words. An attempt is
  /// told which of the workers makes it.
  void tryEach(const std::vector<std::size_t>& points,
               const std::function<Verdict(std::size_t point, std::size_t worker)>& attempt);

  /// "1,234 runs: 0 torn, ..."
  std::string text() const;

 private:
  std::mutex mutex_;
  std::array<std::uint64_t, Verdict::Kinds> counts_{};
};

}  // namespace crash_tests
