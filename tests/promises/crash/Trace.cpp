#include "tests/promises/crash/Trace.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <fcntl.h>
#include <limits>
#include <stdexcept>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

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
  for (const std::string& each : command.environment) putenv(const_cast<char*>(each.c_str()));
  std::vector<char*> arguments{const_cast<char*>("quillmere-settings")};
  for (const std::string& each : command.arguments) {
    arguments.push_back(const_cast<char*>(each.c_str()));
  }
  arguments.push_back(nullptr);
  alarm(patience);
  ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
  execv(QUILLMERE_PROGRAM, arguments.data());
  _exit(127);
}

/// A process that stops at the beginning and at the end of each of its system calls.
class Tracee {
 public:
  explicit Tracee(pid_t process) : process_(process) {
    wait();
    ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
  }

  bool isOver() const { return WIFEXITED(status_) || WIFSIGNALED(status_); }
  int exitCode() const {
    return WIFEXITED(status_) ? WEXITSTATUS(status_) : 128 + WTERMSIG(status_);
  }

  /// Goes on to the next stop at a call, or to its end.
  void goOn() {
    int passed = 0;
    do {
      ptrace(PTRACE_SYSCALL, process_, nullptr, passed);
      wait();
      passed = isOver() ? 0 : WSTOPSIG(status_);
    } while (!isOver() && passed != atCall);
  }
  /// Is traced no longer, and runs to its end.
  void leave() {
    ptrace(PTRACE_DETACH, process_, nullptr, nullptr);
    while (!isOver()) wait();
  }
  void kill() {
    ::kill(process_, SIGKILL);
    while (!isOver()) wait();
  }

  /// The call that begins here; none where one ends.
  std::optional<SystemCall> beginning() const {
    __ptrace_syscall_info info{};
    ptrace(PTRACE_GET_SYSCALL_INFO, process_, sizeof info, &info);
    if (info.op != PTRACE_SYSCALL_INFO_ENTRY) return std::nullopt;
    return static_cast<SystemCall>(info.entry.nr);
  }

  user_regs_struct registers() const {
    user_regs_struct found{};
    ptrace(PTRACE_GETREGS, process_, nullptr, &found);
    return found;
  }
  void set(const user_regs_struct& registers) const {
    ptrace(PTRACE_SETREGS, process_, nullptr, &registers);
  }

 private:
  static constexpr int atCall = SIGTRAP | 0x80;

  void wait() {
    while (waitpid(process_, &status_, 0) < 0 && errno == EINTR) {
    }
  }

  pid_t process_;
  int status_ = 0;
};

void refuse(Tracee& tracee, int error) {
  user_regs_struct registers = tracee.registers();
  registers.orig_rax = std::numeric_limits<decltype(registers.orig_rax)>::max();  // No call.
  tracee.set(registers);
  tracee.goOn();
  if (tracee.isOver()) return;
  registers = tracee.registers();
  registers.rax = static_cast<decltype(registers.rax)>(-error);
  tracee.set(registers);
}

/// The third argument of a write is how many bytes. The program has its registers back afterwards.
void halve(Tracee& tracee) {
  user_regs_struct registers = tracee.registers();
  const auto whole = registers.rdx;
  registers.rdx = whole / 2;
  tracee.set(registers);
  tracee.goOn();
  if (tracee.isOver()) return;
  registers = tracee.registers();
  registers.rdx = whole;
  tracee.set(registers);
}

/// At the beginning of a call.
void strike(Tracee& tracee, const Fault& fault) {
  switch (fault.blow) {
    case Blow::KilledAfter:
      tracee.goOn();
      [[fallthrough]];
    case Blow::KilledBefore:
      if (!tracee.isOver()) tracee.kill();
      break;
    case Blow::Refused:
      refuse(tracee, fault.error);
      break;
    case Blow::Halved:
      halve(tracee);
      break;
    case Blow::None:
    case Blow::NoMemory:
      break;
  }
}

void follow(Tracee& tracee, const Fault& fault, std::size_t nth, Run& run) {
  while (run.calls.size() <= nth) {
    tracee.goOn();
    if (tracee.isOver()) return;
    if (const auto call = tracee.beginning()) run.calls.push_back(*call);
  }
  strike(tracee, fault);
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
