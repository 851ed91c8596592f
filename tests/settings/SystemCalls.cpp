#include "tests/settings/SystemCalls.h"

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace settings_tests {

namespace {

constexpr std::pair<long, const char*> kinds[] = {
    {SYS_openat, "open"},
    {SYS_openat2, "open"},
    {SYS_write, "write"},
    {SYS_writev, "write"},
    {SYS_pwrite64, "write"},
    {SYS_pwritev2, "write"},
    {SYS_copy_file_range, "write"},
    {SYS_sendfile, "write"},
    {SYS_fallocate, "write"},
    {SYS_renameat, "rename"},
    {SYS_renameat2, "rename"},
    {SYS_fsync, "sync"},
    {SYS_fdatasync, "sync"},
    {SYS_syncfs, "sync"},
    {SYS_sync, "sync"},
    {SYS_unlinkat, "other change"},
    {SYS_linkat, "other change"},
    {SYS_symlinkat, "other change"},
    {SYS_mkdirat, "other change"},
    {SYS_ftruncate, "other change"},
#ifdef SYS_open  // Newer processors have only the calls that take a folder.
    {SYS_open, "open"},
    {SYS_creat, "create"},
    {SYS_rename, "rename"},
    {SYS_unlink, "other change"},
    {SYS_link, "other change"},
    {SYS_symlink, "other change"},
    {SYS_mkdir, "other change"},
#endif
};

/// The flags that a file is opened with; those of openat2 stand in the process's memory.
unsigned long flagsOf(pid_t process, const __ptrace_syscall_info& call) {
  const auto& arguments = call.entry.args;
  if (call.entry.nr == SYS_openat) return arguments[2];
  if (call.entry.nr != SYS_openat2) return arguments[1];
  return static_cast<unsigned long>(ptrace(PTRACE_PEEKDATA, process, arguments[2], nullptr));
}

/// Whether what is written goes into a pipe: sanitizers write to one to learn whether memory is
/// there.
bool isToPipe(pid_t process, const __ptrace_syscall_info& call) {
  const auto file = std::filesystem::path("/proc") / std::to_string(process) / "fd" /
                    std::to_string(call.entry.args[0]);
  std::error_code gone;
  return std::filesystem::read_symlink(file, gone).string().starts_with("pipe:");
}

std::string kindOf(pid_t process, const __ptrace_syscall_info& call) {
  const auto found = std::ranges::find(kinds, static_cast<long>(call.entry.nr),
                                       &std::pair<long, const char*>::first);
  if (found == std::end(kinds)) return {};
  const std::string kind = found->second;
  if (kind == "write" && isToPipe(process, call)) return {};
  return kind == "open" && (flagsOf(process, call) & O_CREAT) != 0 ? "create" : kind;
}

[[noreturn]] void doTraced(const std::function<void()>& work) {
  ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
  std::raise(SIGSTOP);
  try {
    work();
  } catch (...) {
    _exit(EXIT_FAILURE);
  }
  _exit(EXIT_SUCCESS);
}

}  // namespace

SystemCalls systemCallsOf(const std::function<void()>& work) {
  const pid_t process = fork();
  if (process == 0) doTraced(work);
  int status = 0;
  waitpid(process, &status, 0);
  ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
  SystemCalls calls;
  while (ptrace(PTRACE_SYSCALL, process, nullptr, nullptr) == 0 &&
         waitpid(process, &status, 0) == process && WIFSTOPPED(status)) {
    __ptrace_syscall_info call{};
    ptrace(PTRACE_GET_SYSCALL_INFO, process, sizeof call, &call);
    if (call.op != PTRACE_SYSCALL_INFO_ENTRY) continue;
    if (const std::string kind = kindOf(process, call); !kind.empty()) ++calls[kind];
  }
  if (!WIFEXITED(status) || WEXITSTATUS(status) != EXIT_SUCCESS) {
    throw std::runtime_error("the work failed");
  }
  return calls;
}

}  // namespace settings_tests
