#include "bench/runner/Program.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace bench {

namespace {

constexpr int patience = 10 * 60 * 1000;  // milliseconds

void check(int error, const std::string& what) {
  if (error != 0) throw std::system_error(error, std::generic_category(), what);
}

void closeOnce(int& number) {
  if (number >= 0) ::close(number);
  number = -1;
}

struct Pipe {
  Pipe() { check(pipe2(ends.data(), O_CLOEXEC) == 0 ? 0 : errno, "pipe"); }
  std::array<int, 2> ends;
};

}  // namespace

Program::Program(const std::vector<std::string>& command) {
  std::signal(SIGPIPE, SIG_IGN);  // Here alone: the program is to end when nobody reads it.
  sigset_t brokenPipe;
  sigemptyset(&brokenPipe);
  sigaddset(&brokenPipe, SIGPIPE);

  std::vector<char*> arguments;
  for (const std::string& part : command) arguments.push_back(const_cast<char*>(part.c_str()));
  arguments.push_back(nullptr);

  const Pipe in;
  const Pipe out;
  input_ = in.ends[1];
  output_ = out.ends[0];
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, in.ends[0], STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, out.ends[1], STDOUT_FILENO);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
  posix_spawnattr_setsigdefault(&attributes, &brokenPipe);
  const int error =
      posix_spawnp(&process_, arguments[0], &actions, &attributes, arguments.data(), environ);
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&actions);
  ::close(in.ends[0]);
  ::close(out.ends[1]);
  if (error != 0) {
    closeOnce(input_);
    closeOnce(output_);
  }
  check(error, command[0]);
}

Program::~Program() { wait(); }

void Program::writeLine(std::string_view line) {
  const std::string whole = std::string(line) + '\n';
  if (::write(input_, whole.data(), whole.size()) < 0 && errno != EPIPE) check(errno, "write");
}

std::optional<std::string> Program::readLine() {
  for (;;) {
    if (const std::size_t end = read_.find('\n'); end != std::string::npos) {
      std::string line = read_.substr(0, end);
      read_.erase(0, end + 1);
      return line;
    }
    awaitOutput();
    std::array<char, 4096> more;
    const ssize_t got = ::read(output_, more.data(), more.size());
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return std::nullopt;
    read_.append(more.data(), static_cast<std::size_t>(got));
  }
}

void Program::awaitOutput() {
  pollfd output{output_, POLLIN, 0};
  int ready;
  do ready = poll(&output, 1, patience);
  while (ready < 0 && errno == EINTR);
  if (ready != 0) return;
  ::kill(process_, SIGKILL);
  throw std::runtime_error("said nothing for ten minutes");
}

void Program::endInput() { closeOnce(input_); }

int Program::wait() {
  endInput();
  closeOnce(output_);
  int status = 0;
  if (process_ < 0) return 0;
  while (waitpid(process_, &status, 0) < 0 && errno == EINTR) {
  }
  process_ = -1;
  return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace bench
