#include <array>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <system_error>

#include "desktop/Process.h"
#include "tests/desktop/Children.h"

namespace desktop_tests {
namespace {

using desktop::Descriptor;
using desktop::Process;

/// No test leaves a child or a descriptor behind.
class ProcessTest : public testing::Test {
 protected:
  ProcessTest() : before_(openDescriptors()) {
    std::array<int, 2> ends{};
    EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    reading = Descriptor(ends[0]);
    writing = Descriptor(ends[1]);
  }
  ~ProcessTest() override {
    reading = Descriptor(-1);
    writing = Descriptor(-1);
    EXPECT_FALSE(hasChildren());
    EXPECT_EQ(openDescriptors(), before_);
  }

  Process::Command shell(const std::string& script) const {
    Process::Command command;
    command.program = "/bin/sh";
    command.arguments = {"-c", script};
    command.output = writing.number();
    return command;
  }
  /// What the program writes, once it has ended.
  std::string outputOf(const Process::Command& command) {
    Process process(command);
    writing = Descriptor(-1);
    process.wait();
    std::string text(1 << 16, '\0');
    text.resize(static_cast<std::size_t>(read(reading.number(), text.data(), text.size())));
    return text;
  }

  Descriptor reading{-1};
  Descriptor writing{-1};

 private:
  const std::ptrdiff_t before_;
};

TEST_F(ProcessTest, WritesWhereItIsTold) { EXPECT_EQ(outputOf(shell("echo 'a  b'")), "a  b\n"); }

TEST_F(ProcessTest, GetsItsArgumentsAsTheyAre) {
  Process::Command command = shell(R"(printf '%s|' "$0" "$@")");
  command.arguments.insert(command.arguments.end(), {"a b", "", "*", "$HOME", "é"});
  EXPECT_EQ(outputOf(command), "a b||*|$HOME|é|");
}

TEST_F(ProcessTest, ReadsNothingUnlessItIsToldWhatToRead) {
  EXPECT_EQ(outputOf(shell("cat; echo end")), "end\n");
}

TEST_F(ProcessTest, ReadsWhatItIsTold) {
  const Descriptor input(memfd_create("input", MFD_CLOEXEC));
  ASSERT_EQ(pwrite(input.number(), "text", 4, 0), 4);
  Process::Command command = shell("cat");
  command.input = input.number();
  EXPECT_EQ(outputOf(command), "text");
}

TEST_F(ProcessTest, GetsAnEnvironmentThatReplacesThisOnes) {
  setenv("QUILLMERE_ONE", "old", 1);
  setenv("QUILLMERE_TWO", "kept", 1);
  Process::Command command =
      shell("echo $QUILLMERE_ONE $QUILLMERE_TWO; env | grep -c QUILLMERE_ONE");
  command.environment = {"QUILLMERE_ONE=new"};
  EXPECT_EQ(outputOf(command), "new kept\n1\n");
}

TEST_F(ProcessTest, InheritsOnlyWhatItIsToInherit) {
  const Descriptor given(open("/dev/zero", O_RDONLY | O_CLOEXEC));
  const Descriptor kept(open("/dev/full", O_RDONLY));
  Process::Command command = shell("for each in /proc/self/fd/*; do readlink $each; done");
  command.inherited = {given.number()};
  const std::string links = outputOf(command);
  EXPECT_NE(links.find("/dev/zero"), std::string::npos) << links;
  EXPECT_EQ(links.find("/dev/full"), std::string::npos) << links;
}

TEST_F(ProcessTest, FindsItsSignalsAsAnyProgramDoes) {
  const auto before = std::signal(SIGPIPE, SIG_IGN);
  sigset_t mask;
  sigset_t maskBefore;
  sigemptyset(&mask);
  sigaddset(&mask, SIGTERM);
  sigprocmask(SIG_BLOCK, &mask, &maskBefore);
  EXPECT_EQ(Process(shell("kill -PIPE $$; exit 0")).wait(), 128 + SIGPIPE);
  EXPECT_EQ(Process(shell("kill -TERM $$; exit 0")).wait(), 128 + SIGTERM);
  sigprocmask(SIG_SETMASK, &maskBefore, nullptr);
  std::signal(SIGPIPE, before);
}

TEST_F(ProcessTest, AnswersItsExitStatus) {
  EXPECT_EQ(Process(shell("exit 0")).wait(), 0);
  EXPECT_EQ(Process(shell("exit 7")).wait(), 7);
  EXPECT_EQ(Process(shell("kill -TERM $$")).wait(), 128 + SIGTERM);
}

TEST_F(ProcessTest, AnswersItAgain) {
  Process process(shell("exit 7"));
  EXPECT_EQ(process.wait(), 7);
  EXPECT_EQ(process.wait(), 7);
  EXPECT_EQ(process.status(), 7);
}

TEST_F(ProcessTest, HasNoStatusWhileItRuns) {
  const Descriptor input = std::move(reading);
  Process::Command command = shell("read line; exit 3");
  command.input = input.number();
  command.output = STDOUT_FILENO;
  Process process(command);
  pollfd end{process.pidfd(), POLLIN, 0};
  EXPECT_EQ(poll(&end, 1, 0), 0);
  EXPECT_EQ(process.status(), std::nullopt);
  ASSERT_EQ(write(writing.number(), "\n", 1), 1);
  EXPECT_EQ(poll(&end, 1, 10'000), 1);
  EXPECT_EQ(process.status(), 3);
}

TEST_F(ProcessTest, ThatCannotBeStartedThrows) {
  Process::Command command;
  command.program = "/no/such/program";
  EXPECT_THROW(const Process process(command), std::system_error);
  command.program = "/etc/passwd";
  EXPECT_THROW(const Process process(command), std::system_error);
}

TEST_F(ProcessTest, IsCollectedLaterWhenItRunsOn) {
  Process::Command command = shell("cat");
  command.input = reading.number();
  command.output = STDOUT_FILENO;
  { const Process process(command); }
  EXPECT_TRUE(hasChildren());
  writing = Descriptor(-1);  // Now it ends.
  siginfo_t ended{};
  ASSERT_EQ(waitid(P_ALL, 0, &ended, WEXITED | WNOWAIT), 0);
  command.arguments = {"-c", "exit 0"};
  Process(command).wait();
}

TEST_F(ProcessTest, ThatCannotBeWatchedThrowsAtOnceAndIsCollectedLater) {
  Process::Command command = shell("read line");
  command.input = reading.number();
  command.output = STDOUT_FILENO;
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
  const int lowestFree = Descriptor(dup(STDIN_FILENO)).number();
  const rlimit none{static_cast<rlim_t>(lowestFree), before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
  EXPECT_THROW(const Process process(command), std::system_error);
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
  EXPECT_TRUE(hasChildren());  // It reads still.
  writing = Descriptor(-1);
  siginfo_t ended{};
  ASSERT_EQ(waitid(P_ALL, 0, &ended, WEXITED | WNOWAIT), 0);
  command.arguments = {"-c", "exit 0"};
  Process(command).wait();
}

TEST_F(ProcessTest, IsMovedWithItsStatus) {
  Process first(shell("exit 5"));
  Process second(std::move(first));
  EXPECT_EQ(second.wait(), 5);
}

}  // namespace
}  // namespace desktop_tests
