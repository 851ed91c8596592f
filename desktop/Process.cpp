#include "desktop/Process.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <string_view>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>

namespace desktop {

namespace {

/// How long a program whose output has just ended may take to be gone, in milliseconds.
constexpr int lastMoment = 50;

void check(int error, const std::string& what) {
  if (error != 0) throw std::system_error(error, std::generic_category(), what);
}

/// What posix_spawn(3) does in the child before the program runs.
class FileActions {
 public:
  FileActions() { check(posix_spawn_file_actions_init(&actions_), "posix_spawn"); }
  FileActions(const FileActions&) = delete;
  FileActions& operator=(const FileActions&) = delete;
  ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }

  /// A descriptor under its own number is only kept open.
  void duplicate(int from, int to) {
    check(posix_spawn_file_actions_adddup2(&actions_, from, to), "posix_spawn");
  }
  void openNothing(int number) {
    check(posix_spawn_file_actions_addopen(&actions_, number, "/dev/null", O_RDONLY, 0),
          "posix_spawn");
  }
  const posix_spawn_file_actions_t* get() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_;
};

/// The signals as a program expects to find them; here SIGPIPE, say, is ignored.
class PlainSignals {
 public:
  PlainSignals() {
    check(posix_spawnattr_init(&attributes_), "posix_spawn");
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes_, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes_, &signals);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  }
  PlainSignals(const PlainSignals&) = delete;
  PlainSignals& operator=(const PlainSignals&) = delete;
  ~PlainSignals() { posix_spawnattr_destroy(&attributes_); }

  const posix_spawnattr_t* get() const { return &attributes_; }

 private:
  posix_spawnattr_t attributes_;
};

std::string_view nameOf(std::string_view variable) {
  return variable.substr(0, variable.find('='));
}

/// `own` and what this program has beside it, each name once.
std::vector<std::string> environmentWith(std::vector<std::string> own) {
  const std::size_t count = own.size();
  for (char** variable = environ; *variable; ++variable) {
    const bool isReplaced =
        std::any_of(own.begin(), own.begin() + static_cast<std::ptrdiff_t>(count),
                    [&](const std::string& each) { return nameOf(each) == nameOf(*variable); });
    if (!isReplaced) own.emplace_back(*variable);
  }
  return own;
}

/// The texts as posix_spawn(3) takes them; valid as long as `texts` is unchanged.
std::vector<char*> pointersTo(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

pid_t start(const Process::Command& command) {
  // Libraries open files as well, and not all of them keep theirs from other programs.
  if (close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC) < 0) check(errno, "close_range");
  FileActions actions;
  if (command.input) {
    actions.duplicate(*command.input, STDIN_FILENO);
  } else {
    actions.openNothing(STDIN_FILENO);
  }
  actions.duplicate(command.output, STDOUT_FILENO);
  actions.duplicate(STDERR_FILENO, STDERR_FILENO);
  for (const int number : command.inherited) actions.duplicate(number, number);

  std::vector<std::string> words = {command.program};
  words.insert(words.end(), command.arguments.begin(), command.arguments.end());
  std::vector<std::string> environment = environmentWith(command.environment);
  pid_t pid = 0;
  check(posix_spawn(&pid, command.program.c_str(), actions.get(), PlainSignals().get(),
                    pointersTo(words).data(), pointersTo(environment).data()),
        command.program);
  return pid;
}

/// The exit status of a program that has ended, which leaves no trace of it; none while it runs.
/// Until then its number cannot become another's.
std::optional<int> collect(pid_t pid, int options) {
  siginfo_t ended{};
  int result;
  do {
    result = waitid(P_PID, static_cast<id_t>(pid), &ended, WEXITED | options);
  } while (result < 0 && errno == EINTR);
  if (result < 0) return EXIT_FAILURE;  // Somebody else collected it: what it said is lost.
  if (ended.si_pid == 0) return std::nullopt;
  return ended.si_code == CLD_EXITED ? ended.si_status : 128 + ended.si_status;
}

/// The programs that nobody waits for any more.
std::vector<pid_t> runningOn;

void collectThoseThatEnded() {
  std::erase_if(runningOn, [](pid_t pid) { return collect(pid, WNOHANG); });
}

/// Leaves the program to run on when it cannot be watched: it may take as long as it likes.
Descriptor watch(pid_t pid) {
  Descriptor handle(static_cast<int>(syscall(SYS_pidfd_open, pid, 0)));
  if (handle.number() < 0) {
    const int error = errno;
    runningOn.push_back(pid);
    check(error, "it runs, but cannot be watched");
  }
  return handle;
}

}  // namespace

Process::Process(const Command& command) : pid_(start(command)), handle_(watch(pid_)) {
  collectThoseThatEnded();
}

Process::~Process() {
  if (handle_.number() < 0 || status_) return;
  pollfd end{handle_.number(), POLLIN, 0};
  poll(&end, 1, lastMoment);
  runningOn.push_back(pid_);
  collectThoseThatEnded();
}

std::optional<int> Process::status() {
  if (!status_) status_ = collect(pid_, WNOHANG);
  return status_;
}

int Process::wait() {
  if (!status_) status_ = collect(pid_, 0);
  return *status_;
}

}  // namespace desktop
