#include "bench/runner/Contest.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <limits>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/runner/Competitor.h"

namespace bench {

namespace {

using Competitors = std::vector<std::unique_ptr<Competitor>>;

/// A race goes on for about as long, but for no fewer and no more rounds than these.
constexpr double nanosecondsOfRace = 4e9;
constexpr double fewestRounds = 5;
constexpr double mostRounds = 61;

double median(std::vector<double> values) {
  std::ranges::sort(values);
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

// The limit comes first, ours second.
Competitors start(const Race& race, std::size_t size, const Ground& ground) {
  std::vector<Entry> entries{race.limit, race.ours};
  entries.insert(entries.end(), race.peers.begin(), race.peers.end());
  Competitors all;
  for (const Entry& entry : entries) {
    if (entry.largest < size) continue;
    const std::string folder =
        std::string(race.name) + '-' + std::to_string(size) + '-' + std::to_string(all.size());
    all.push_back(std::make_unique<Competitor>(entry, entry.task.empty() ? race.name : entry.task,
                                               size, ground.programs, ground.scratch / folder));
  }
  return all;
}

void runRounds(const std::vector<Competitor*>& runners) {
  const double round = std::accumulate(
      runners.begin(), runners.end(), 0.0,
      [](double sum, const Competitor* one) { return sum + one->nanosecondsOfBatch(); });
  const auto rounds =
      static_cast<std::size_t>(std::clamp(nanosecondsOfRace / round, fewestRounds, mostRounds));
  std::vector<Competitor*> order = runners;
  for (std::size_t done = 0; done < rounds; ++done) {
    for (Competitor* one : order) one->runBatch();
    std::ranges::rotate(order, order.begin() + 1);
  }
}

Result resultOf(const Competitor& one, const Competitor& limit) {
  Result result;
  if (!one.isHere()) {
    result.unit = "absent";
    return result;
  }
  result.median = median(one.times());
  std::vector<double> ratios;
  std::ranges::transform(one.times(), limit.times(), std::back_inserter(ratios), std::divides<>());
  result.ratio = median(ratios);
  result.lowest = std::ranges::min(ratios);
  result.highest = std::ranges::max(ratios);
  return result;
}

void judge(Result& ours, const Race& race, const Distance& distance, double fastestPeer) {
  std::string must;
  bool holds = true;
  const auto ask = [&](const std::string& what, bool held) {
    must += (must.empty() ? "" : ", ") + what;
    holds = holds && held;
  };
  if (distance.ratio > 0) ask("≤ " + rounded(distance.ratio), *ours.ratio <= distance.ratio);
  if (distance.nanoseconds > 0) {
    ask("≤ " + rounded(distance.nanoseconds / 1e6) + " ms", ours.median <= distance.nanoseconds);
  }
  if (race.first) ask("first", ours.median < fastestPeer);
  ours.must = must;
  if (!must.empty()) ours.holds = holds;
}

}  // namespace

void run(const Race& race, const Distance& distance, const Ground& ground,
         const std::function<void(const Result&)>& found) {
  const Competitors all = start(race, distance.size, ground);
  std::vector<Competitor*> here;
  for (const auto& one : all) {
    if (one->isHere()) here.push_back(one.get());
  }
  if (!all[0]->isHere() || !all[1]->isHere()) {
    throw std::runtime_error(std::string(race.name) + ": ours or the limit does not run");
  }
  runRounds(here);

  double fastestPeer = std::numeric_limits<double>::infinity();
  for (std::size_t i = 2; i < here.size(); ++i) {
    fastestPeer = std::min(fastestPeer, median(here[i]->times()));
  }
  for (const auto& one : all) {
    Result result = resultOf(*one, *all[0]);
    result.race = race.name;
    result.size = distance.size;
    result.contestant = one->name();
    if (one == all[1]) judge(result, race, distance, fastestPeer);
    found(result);
  }
}

}  // namespace bench
