#include <gtest/gtest.h>
#include <iostream>
#include <set>

#include "tests/model/Plan.h"
#include "tests/model/Run.h"
#include "tests/support/Figures.h"

namespace {

std::string shortest(const model::Operations& failing) {
  const auto fails = [](const model::Operations& operations) {
    return !model::replay(operations).failure.empty();
  };
  const model::Run run = model::replay(model::shrink(failing, fails));
  std::string text = "The shortest operations that were found to fail:\n";
  for (const std::string& line : run.trace) text += "  " + line + '\n';
  return text + run.failure;
}

/// Random operations on a phone and on a simple model of it, which are compared after each.
TEST(RandomOperations, LeaveThePhoneAsTheModelSays) {
  const model::Plan plan(12, 1000);
  for (const unsigned seed : plan.seeds) {
    std::cout << plan.again(seed) << std::endl;  // At once: the run may end in a crash.
    const model::Run run = model::runRandom(seed, plan.operations);
    if (!run.failure.empty()) {
      FAIL() << plan.again(seed) << " fails at operation " << run.operations.size() << ", "
             << run.trace.back() << ":\n"
             << run.failure << shortest(run.operations);
    }
    EXPECT_EQ(run.operations.size(), plan.operations);
  }
  support::note("random operations against the model", plan.text() + ": 0 divergences",
                "0 divergences");
}

TEST(RandomOperationsOfOneRun, AreOfEveryKind) {
  std::set<std::size_t> kinds;
  for (const model::Operation& each : model::runRandom(1, 2000).operations) kinds.insert(each.rule);
  EXPECT_EQ(kinds.size(), model::rules().size());
}

}  // namespace
