#include <gtest/gtest.h>
#include <iostream>

#include "tests/model/KilledRun.h"
#include "tests/model/Plan.h"
#include "tests/support/Figures.h"

namespace {

std::string figure(const model::Plan& plan, const model::KilledRun& all) {
  return plan.text() + ", " + support::grouped(all.kills) + " kills, " +
         support::grouped(all.inTheMiddle) + " of them in the middle: 0 divergences";
}

/// Random operations by a program that is killed again and again, and on a simple model of it.
TEST(KilledOperations, LeaveWhatWasDone) {
  const model::Plan plan(4, 2000);
  model::KilledRun all;
  for (const unsigned seed : plan.seeds) {
    std::cout << plan.again(seed) << std::flush;
    const model::KilledRun run = model::runKilled(seed, plan.operations);
    ASSERT_EQ(run.failure, "") << plan.again(seed);
    EXPECT_EQ(run.operations, plan.operations);
    EXPECT_GT(run.kills, run.operations / 100);
    std::cout << ": " << run.kills << " kills, " << run.inTheMiddle << " of them in the middle, "
              << run.halfDone << " of which left a part done" << std::endl;
    all.kills += run.kills;
    all.inTheMiddle += run.inTheMiddle;
  }
  // Else the moments are badly chosen, and one half of it is not shown.
  EXPECT_GT(all.inTheMiddle, 0U);
  EXPECT_GT(all.kills, all.inTheMiddle);
  support::note("the same, killed about every 50 operations and started anew", figure(plan, all),
                "0 divergences");
}

}  // namespace
