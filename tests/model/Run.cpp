#include "tests/model/Run.h"

#include <algorithm>
#include <exception>

#include "tests/model/Disk.h"
#include "tests/support/TemporaryFolder.h"

namespace model {

void step(World& world, const Operation& operation, Run& run, const std::function<void()>& done) {
  const bool wasSpoilt = world.screen.store.state == Store::State::Unreadable;
  world.phone.forget();
  world.screen.posted.clear();
  world.screen.store.steps.clear();
  world.screen.animations = animationsIn(world.folder);
  run.operations.push_back(operation);
  const Rule& rule = rules()[operation.rule];
  run.trace.emplace_back(rule.name);
  try {
    const Deed deed = rule.act(world.screen, operation.first, operation.second);
    if (!deed.what.empty()) run.trace.back() += ' ' + deed.what;
    deed.onPhone(world.phone);
    done();
    run.failure = difference(world, run.operations.size());
  } catch (const std::exception& raised) {
    run.failure = std::string("raised: ") + raised.what() + '\n';
  }
  // Only an unreadable file is something that the person in front of the phone has to know.
  const bool isSpoilt = wasSpoilt || world.screen.store.state == Store::State::Unreadable;
  for (const std::string& line : world.phone.reports()) {
    if (!isSpoilt && !line.ends_with("took the changes that were kept beside it")) {
      run.failure += "reported: " + line + '\n';
    }
  }
}

Run runRandom(unsigned seed, std::size_t count) {
  const support::TemporaryFolder folder;
  World world(folder.path);
  Run run;
  std::mt19937 random(seed);
  while (run.operations.size() < count && run.failure.empty()) {
    step(world, randomOperation(world.screen, random), run);
  }
  return run;
}

Run replay(const Operations& operations) {
  const support::TemporaryFolder folder;
  World world(folder.path);
  Run run;
  for (const Operation& operation : operations) {
    if (!run.failure.empty()) break;
    if (rules()[operation.rule].applies(world.screen)) step(world, operation, run);
  }
  return run;
}

Operations shrink(Operations operations, const std::function<bool(const Operations&)>& fails) {
  for (std::size_t part = operations.size() / 2; part > 0;) {
    const std::size_t before = operations.size();
    for (std::size_t start = 0; start < operations.size();) {
      const auto from = operations.begin() + static_cast<std::ptrdiff_t>(start);
      const std::size_t length = std::min(part, operations.size() - start);
      Operations shorter(operations.begin(), from);
      shorter.insert(shorter.end(), from + static_cast<std::ptrdiff_t>(length), operations.end());
      if (fails(shorter)) {
        operations = std::move(shorter);
      } else {
        start += part;
      }
    }
    if (part > 1 || operations.size() == before) part /= 2;
  }
  return operations;
}

}  // namespace model
