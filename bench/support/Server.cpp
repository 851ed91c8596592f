#include "bench/support/Server.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace bench {

namespace {

void check(int error, const std::string& what) {
  if (error != 0) throw std::system_error(error, std::generic_category(), what);
}

pid_t spawn(const std::vector<std::string>& command, int output) {
  std::vector<char*> arguments;
  for (const std::string& part : command) arguments.push_back(const_cast<char*>(part.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
  pid_t process = -1;
  const int error =
      posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  check(error, command[0]);
  return process;
}

/// Whether a line came.
bool waitForLine(int input) {
  for (char letter = 0; letter != '\n';) {
    if (::read(input, &letter, 1) != 1) return false;
  }
  return true;
}

}  // namespace

Server::Server(const std::vector<std::string>& command) {
  std::array<int, 2> ends;
  check(pipe2(ends.data(), O_CLOEXEC) == 0 ? 0 : errno, "pipe");
  process_ = spawn(command, ends[1]);
  ::close(ends[1]);
  const bool serves = waitForLine(ends[0]);
  ::close(ends[0]);
  if (!serves) throw std::runtime_error(command[0] + " does not say that it serves");
}

Server::~Server() {
  ::kill(process_, SIGTERM);
  while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
  }
}

}  // namespace bench
