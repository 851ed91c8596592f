#include "tests/promises/crash/Tracee.h"

#include <cerrno>
#include <csignal>
#include <limits>
#include <sys/ptrace.h>
#include <sys/wait.h>

namespace crash_tests {

namespace {

constexpr int atCall = SIGTRAP | 0x80;  // PTRACE_O_TRACESYSGOOD

}  // namespace

Tracee::Tracee(pid_t process) : process_(process) {
  wait();
  ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
}

bool Tracee::isOver() const { return WIFEXITED(status_) || WIFSIGNALED(status_); }

int Tracee::exitCode() const {
  return WIFEXITED(status_) ? WEXITSTATUS(status_) : 128 + WTERMSIG(status_);
}

void Tracee::goOn() {
  int passed = 0;
  do {
    ptrace(PTRACE_SYSCALL, process_, nullptr, passed);
    wait();
    passed = isOver() ? 0 : WSTOPSIG(status_);
  } while (!isOver() && passed != atCall);
}

void Tracee::leave() {
  ptrace(PTRACE_DETACH, process_, nullptr, nullptr);
  while (!isOver()) wait();
}

void Tracee::kill() {
  ::kill(process_, SIGKILL);
  while (!isOver()) wait();
}

void Tracee::wait() {
  while (waitpid(process_, &status_, 0) < 0 && errno == EINTR) {
  }
}

std::optional<SystemCall> Tracee::beginning() const {
  __ptrace_syscall_info info{};
  ptrace(PTRACE_GET_SYSCALL_INFO, process_, sizeof info, &info);
  if (info.op != PTRACE_SYSCALL_INFO_ENTRY) return std::nullopt;
  return static_cast<SystemCall>(info.entry.nr);
}

user_regs_struct Tracee::registers() const {
  user_regs_struct found{};
  ptrace(PTRACE_GETREGS, process_, nullptr, &found);
  return found;
}

void Tracee::set(const user_regs_struct& registers) const {
  ptrace(PTRACE_SETREGS, process_, nullptr, &registers);
}

void Tracee::refuse(int error) {
  user_regs_struct changed = registers();
  changed.orig_rax = std::numeric_limits<decltype(changed.orig_rax)>::max();  // No call at all.
  set(changed);
  goOn();
  if (isOver()) return;
  changed = registers();
  changed.rax = static_cast<decltype(changed.rax)>(-error);
  set(changed);
}

/// The third argument of a write is how many bytes. The program has its registers back afterwards.
void Tracee::halve() {
  user_regs_struct changed = registers();
  const auto whole = changed.rdx;
  changed.rdx = whole / 2;
  set(changed);
  goOn();
  if (isOver()) return;
  changed = registers();
  changed.rdx = whole;
  set(changed);
}

void Tracee::strike(const Fault& fault) {
  switch (fault.blow) {
    case Blow::KilledAfter:
      goOn();
      [[fallthrough]];
    case Blow::KilledBefore:
      if (!isOver()) kill();
      break;
    case Blow::Refused:
      return refuse(fault.error);
    case Blow::Halved:
      return halve();
    case Blow::None:
    case Blow::NoMemory:
      break;
  }
}

}  // namespace crash_tests
