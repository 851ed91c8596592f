#include "bench/support/Contestant.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <string>
#include <sysexits.h>

namespace bench {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::nanoseconds;

nanoseconds timeOf(const Trial& trial, std::size_t times) {
  nanoseconds taken{0};
  if (!trial.before) {
    const auto start = Clock::now();
    while (times-- > 0) trial.operation();
    return Clock::now() - start;
  }
  while (times-- > 0) {
    trial.before();
    const auto start = Clock::now();
    trial.operation();
    taken += Clock::now() - start;
  }
  return taken;
}

void race(const Case& chosen, std::size_t size, const std::filesystem::path& folder) {
  const Trial trial = chosen.prepare(size, folder);
  std::cout << "ready" << std::endl;
  for (std::size_t times = 0; std::cin >> times;) {
    std::cout << timeOf(trial, times).count() << std::endl;
  }
}

int say(const std::string& complaint, int status) {
  std::cerr << complaint << std::endl;
  return status;
}

}  // namespace

int compete(int argc, char** argv, std::span<const Case> cases) {
  if (argc != 4) return say("usage: " + std::string(argv[0]) + " CASE SIZE FOLDER", EX_USAGE);
  const auto chosen = std::ranges::find(cases, std::string_view(argv[1]), &Case::name);
  if (chosen == cases.end()) return say("no case " + std::string(argv[1]), EX_USAGE);
  try {
    race(*chosen, std::stoul(argv[2]), std::filesystem::absolute(argv[3]));
  } catch (const Unavailable& reason) {
    return say(reason.what(), EX_UNAVAILABLE);
  } catch (const std::exception& failure) {
    return say(failure.what(), EX_SOFTWARE);
  }
  return EX_OK;
}

}  // namespace bench
