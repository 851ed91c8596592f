#include "tests/promises/crash/Trace.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <utility>

#include "tests/promises/crash/Tracee.h"

namespace crash_tests {

namespace {

constexpr unsigned patience = 10;  // seconds

constexpr std::pair<SystemCall, const char*> names[] = {
#include "names.inc"
};

/// In the child, which the parent's thread traces from here on.
[[noreturn]] void become(const Command& command, int output) {
  dup2(open("/dev/null", O_RDONLY | O_CLOEXEC), STDIN_FILENO);
  dup2(output, STDOUT_FILENO);
  dup2(output, STDERR_FILENO);
  for (const std::string& each : command.executable.environment)
    putenv(const_cast<char*>(each.c_str()));
  std::vector<char*> arguments{const_cast<char*>("quillmere-settings")};
  for (const std::string& each : command.arguments) {
    arguments.push_back(const_cast<char*>(each.c_str()));
  }
  arguments.push_back(nullptr);
  alarm(patience);
  ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
  execv(command.executable.file, arguments.data());
  _exit(127);
}

void follow(Tracee& tracee, const Fault& fault, std::size_t nth, Run& run) {
  while (run.calls.size() <= nth) {
    tracee.goOn();
    if (tracee.isOver()) return;
    if (const auto call = tracee.beginning()) run.calls.push_back(*call);
  }
  tracee.strike(fault);
  if (!tracee.isOver()) tracee.leave();
}

std::string readAll(int output) {
  std::string text;
  std::array<char, 4096> bytes;
  for (ssize_t got; (got = read(output, bytes.data(), bytes.size())) > 0;) {
    text.append(bytes.data(), static_cast<std::size_t>(got));
  }
  return text;
}

/// Traced up to the nth call; not at all without a fault at a call.
Run runTraced(const Command& command, const Fault& fault, std::size_t nth, bool traced) {
  int pipe[2];
  if (pipe2(pipe, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  const pid_t process = fork();
  if (process < 0) throw std::runtime_error("no process");
  if (process == 0) become(command, pipe[1]);
  close(pipe[1]);
  // A number of a process may be another's by the time that the thread is done.
  const auto handle = static_cast<int>(syscall(SYS_pidfd_open, process, 0));
  std::jthread talk;
  if (command.meanwhile) {
    talk = std::jthread([&] {
      command.meanwhile(pipe[0]);
      syscall(SYS_pidfd_send_signal, handle, SIGKILL, nullptr, 0);
    });
  }
  Run run;
  Tracee tracee(process);
  traced ? follow(tracee, fault, nth, run) : tracee.leave();
  if (talk.joinable()) talk.join();
  run.exitCode = tracee.exitCode();
  run.said = readAll(pipe[0]);
  close(pipe[0]);
  close(handle);
  return run;
}

}  // namespace

std::string Run::lastCall() const {
  if (calls.empty()) return "no call";
  const auto found =
      std::ranges::find(names, calls.back(), &std::pair<SystemCall, const char*>::first);
  return found == std::end(names) ? std::to_string(calls.back()) : found->second;
}

Run run(const Command& command, const Fault& fault, std::size_t nth) {
  const bool traced = fault.blow != Blow::None && fault.blow != Blow::NoMemory;
  return runTraced(command, fault, nth, traced);
}

Run record(const Command& command) { return runTraced(command, noFault, never, true); }

}  // namespace crash_tests
