#include "tests/promises/crash/Points.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <gtest/gtest.h>
#include <numeric>
#include <sys/syscall.h>
#include <thread>

#include "tests/support/Figures.h"

namespace crash_tests {

namespace {

/// A defect may show thousands of times.
constexpr std::size_t told = 5;

std::vector<std::size_t> callsFrom(std::size_t first, const Rehearsal& rehearsal) {
  std::vector<std::size_t> points;
  for (std::size_t i = first; i < rehearsal.calls().size(); ++i) points.push_back(i);
  return points;
}

}  // namespace

std::vector<std::size_t> chosen(const std::vector<std::size_t>& points, std::size_t count,
                                std::size_t turn) {
  if (const char* const one = std::getenv("QUILLMERE_CRASH_POINT")) return {std::stoul(one)};
  if (support::isLong() || points.size() <= count) return points;
  const std::size_t step = points.size() / count;
  std::vector<std::size_t> some;
  for (std::size_t i = turn % step; i < points.size(); i += step) some.push_back(points[i]);
  return some;
}

std::vector<std::size_t> callsInPhone(const Rehearsal& rehearsal) {
  const auto& calls = rehearsal.calls();
  const auto opening = std::ranges::find(calls, SystemCall{SYS_openat2});
  return callsFrom(static_cast<std::size_t>(opening - calls.begin()), rehearsal);
}

std::vector<std::size_t> callsFor(const Fault& fault, const Rehearsal& rehearsal) {
  std::vector<std::size_t> points =
      support::isLong() ? callsFrom(0, rehearsal) : callsInPhone(rehearsal);
  if (fault.blow == Blow::Halved) {
    std::erase_if(points, [&](std::size_t i) { return rehearsal.calls()[i] != SYS_write; });
  }
  return points;
}

void Tally::tryEach(const std::vector<std::size_t>& points,
                    const std::function<Verdict(std::size_t, std::size_t)>& attempt) {
  std::atomic<std::size_t> next = 0;
  std::size_t failures = 0;
  const auto work = [&](std::size_t worker) {
    for (std::size_t i; (i = next++) < points.size();) {
      const Verdict verdict = attempt(points[i], worker);
      const std::scoped_lock lock(mutex_);
      ++counts_[verdict.kind];
      if (verdict.kind == Verdict::Whole || failures++ >= told) continue;
      ADD_FAILURE() << "QUILLMERE_CRASH_POINT=" << points[i] << ": " << verdict.words;
    }
  };
  {
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < workers; ++i) threads.emplace_back(work, i);
  }
  EXPECT_EQ(failures, 0U) << "of " << points.size() << " points";
}

std::string Tally::text() const {
  const auto runs = std::accumulate(counts_.begin(), counts_.end(), std::uint64_t{0});
  const auto number = [&](Verdict::Kind kind) { return support::grouped(counts_[kind]); };
  return support::grouped(runs) + " runs: " + number(Verdict::Torn) + " torn, " +
         number(Verdict::Lost) + " lost, " + number(Verdict::Old) + " acknowledged but old, " +
         number(Verdict::Left) + " with temporary files and " + number(Verdict::Broken) +
         " not whole after restart";
}

}  // namespace crash_tests
