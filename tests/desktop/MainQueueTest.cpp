#include <gtest/gtest.h>
#include <stdexcept>

#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using std::chrono::milliseconds;
using Names = std::vector<std::string>;

class MainQueueTest : public PhoneTest {
 protected:
  MainQueueTest() {
    queue.now = [this] { return time; };
  }

  void add(milliseconds delay, const std::string& name) {
    queue.after(delay, [this, name] { ran.push_back(name); });
  }
  void pass(milliseconds duration) {
    time += duration;
    queue.run();
  }

  desktop::MainQueue::Clock::time_point time{};
  desktop::MainQueue queue;
  Names ran;
};

TEST_F(MainQueueTest, RunsByTimeAndThenInTheOrderOfAdding) {
  add(milliseconds(20), "late");
  add(milliseconds(10), "first");
  add(milliseconds(10), "second");
  pass(milliseconds(30));
  EXPECT_EQ(ran, (Names{"first", "second", "late"}));
}

TEST_F(MainQueueTest, RunsNothingBeforeItsTimeAndNothingTwice) {
  EXPECT_EQ(queue.due(), std::nullopt);
  add(milliseconds(10), "work");
  EXPECT_EQ(queue.due(), time + milliseconds(10));
  pass(milliseconds(9));
  EXPECT_EQ(ran, Names{});
  pass(milliseconds(1));
  pass(milliseconds(100));
  EXPECT_EQ(ran, Names{"work"});
  EXPECT_EQ(queue.due(), std::nullopt);
}

TEST_F(MainQueueTest, RunsWhatComesDueMeanwhileAndNoMore) {
  queue.after({}, [this] {
    add(milliseconds(0), "at once");
    add(milliseconds(1), "later");
    ran.push_back("first");
  });
  add(milliseconds(0), "second");
  pass(milliseconds(0));
  EXPECT_EQ(ran, (Names{"first", "second", "at once"}));
  EXPECT_EQ(queue.due(), time + milliseconds(1));
}

TEST_F(MainQueueTest, TimeThatPassesMeanwhileCounts) {
  queue.after({}, [this] { time += milliseconds(5); });
  add(milliseconds(5), "work");
  pass(milliseconds(0));
  EXPECT_EQ(ran, Names{"work"});
}

TEST_F(MainQueueTest, MayBeClearedByWhatItRuns) {
  queue.after({}, [this] {
    queue.clear();
    add(milliseconds(0), "new");
  });
  add(milliseconds(0), "forgotten");
  add(milliseconds(5), "forgotten as well");
  pass(milliseconds(10));
  EXPECT_EQ(ran, Names{"new"});
  EXPECT_EQ(queue.due(), std::nullopt);
}

TEST_F(MainQueueTest, ReportsWhatIsThrownAndRunsTheRest) {
  queue.after({}, [] { throw std::runtime_error("it failed"); });
  add(milliseconds(0), "rest");
  pass(milliseconds(0));
  EXPECT_EQ(reports, Names{"it failed"});
  EXPECT_EQ(ran, Names{"rest"});
}

TEST_F(MainQueueTest, TellsOfEachAddition) {
  int additions = 0;
  queue.added = [&] { ++additions; };
  add(milliseconds(0), "one");
  queue.after({}, [this] { add(milliseconds(0), "two"); });
  EXPECT_EQ(additions, 2);
  pass(milliseconds(0));
  EXPECT_EQ(additions, 3);
}

}  // namespace
}  // namespace desktop_tests
