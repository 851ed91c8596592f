#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>

#include "settings/Commands.h"
#include "tests/support/TemporaryFolder.h"

namespace settings_tests {
namespace {

using settings::CommandQueue;
using settings::Commands;

class CommandQueueTest : public testing::Test {
 protected:
  /// The command with "FILE" replaced by the file that `noted` reads.
  std::string noting(std::string command) const {
    for (std::size_t at; (at = command.find("FILE")) != std::string::npos;) {
      command.replace(at, 4, (folder.path / "noted").string());
    }
    return command;
  }
  std::string noted() const {
    std::ifstream stream(folder.path / "noted");
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  /// What is complained of until all has ended.
  std::string complaintsOf(const std::function<void()>& runs) {
    testing::internal::CaptureStderr();
    runs();
    loop.run();
    return testing::internal::GetCapturedStderr();
  }

  static std::string digits(std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) text += std::to_string(i) + '\n';
    return text;
  }

  const support::TemporaryFolder folder;
  boost::asio::io_context loop{1};
};

TEST_F(CommandQueueTest, RunsOneAtATimeInOrder) {
  // The first would end last if they ran side by side.
  CommandQueue queue(loop, noting("[ $1 != 0 ] || sleep 0.3; echo $1 >> FILE"));
  const auto run = [&] {
    for (int i = 0; i < 5; ++i) queue.run({{std::to_string(i)}, ""});
  };
  EXPECT_EQ(complaintsOf(run), "");
  EXPECT_EQ(noted(), digits(5));
}

TEST_F(CommandQueueTest, GivesEachRunItsOwnInput) {
  CommandQueue queue(loop, noting("cat >> FILE"));
  for (const char* text : {"one", "", "two"}) queue.run({{}, text});
  loop.run();
  EXPECT_EQ(noted(), "onetwo");
}

TEST_F(CommandQueueTest, DropsAndReportsWhatIsBeyondThoseThatMayWait) {
  CommandQueue queue(loop, noting("echo $1 >> FILE"));
  const std::string complaints = complaintsOf([&] {
    for (std::size_t i = 0; i < CommandQueue::mostWaiting + 4; ++i) {
      queue.run({{std::to_string(i)}, ""});
    }
  });
  EXPECT_EQ(noted(), digits(CommandQueue::mostWaiting + 1));
  EXPECT_EQ(std::ranges::count(complaints, '\n'), 3) << complaints;
  EXPECT_NE(complaints.find("was not run: 64 runs of it wait already"), std::string::npos);
}

TEST_F(CommandQueueTest, GoesOnBehindAFailure) {
  CommandQueue queue(loop, noting("echo $1 >> FILE; exit $1"));
  const std::string complaints = complaintsOf([&] {
    for (const char* status : {"3", "0"}) queue.run({{status}, ""});
  });
  EXPECT_EQ(noted(), "3\n0\n");
  EXPECT_TRUE(complaints.ends_with("ended with status 3\n")) << complaints;
}

TEST_F(CommandQueueTest, ReportsWhatCannotBeRunAndRunsTheNext) {
  CommandQueue queue(loop, noting("echo $1 >> FILE"));
  const std::string longerThanAnArgument(1 << 20, 'x');
  const std::string complaints = complaintsOf([&] {
    queue.run({{longerThanAnArgument}, ""});
    queue.run({{"second"}, ""});
  });
  EXPECT_NE(complaints.find("Argument list too long"), std::string::npos) << complaints;
  EXPECT_EQ(noted(), "second\n");
}

TEST_F(CommandQueueTest, NeitherWaitsForASlowCommandAtTheEndNorKeepsSilentAboutTheRest) {
  testing::internal::CaptureStderr();
  {
    CommandQueue queue(loop, noting("sleep 3; echo late >> FILE"));
    for (int i = 0; i < 3; ++i) queue.run({});
  }
  EXPECT_NE(testing::internal::GetCapturedStderr().find("did not get to 2 of its runs"),
            std::string::npos);
  EXPECT_EQ(noted(), "");
}

TEST_F(CommandQueueTest, HoldsUpNoOtherCommand) {
  Commands commands(loop);
  commands.run(noting("sleep 0.5; echo slow >> FILE"), {});
  commands.run(noting("echo quick >> FILE"), {});
  commands.run("", {});
  loop.run();
  EXPECT_EQ(noted(), "quick\nslow\n");
}

}  // namespace
}  // namespace settings_tests
