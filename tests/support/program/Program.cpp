#include "tests/support/program/Program.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <grp.h>
#include <poll.h>
#include <pty.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace program_tests {

namespace {

constexpr auto patience = std::chrono::seconds(30);
constexpr uid_t nobody = 65534;

void becomeNobody() {
  if (getuid() != 0) return;
  if (setgroups(0, nullptr) != 0 || setgid(nobody) != 0 || setuid(nobody) != 0) _exit(126);
}

void limitOpenFiles(unsigned count) {
  const rlimit limit{count, count};
  if (setrlimit(RLIMIT_NOFILE, &limit) != 0) _exit(126);
}

void setEnvironment(const Start& start) {
  unsetenv("DISPLAY");
  unsetenv("WAYLAND_DISPLAY");
  for (const auto& [name, value] : start.environment) {
    value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
  }
}

/// In the child. The program is opened first: nobody may not be allowed to reach it by its path.
[[noreturn]] void become(const Start& start, const int (&pipes)[2][2]) {
  const int program = open(QUILLMERE_PROGRAM, O_RDONLY | O_CLOEXEC);
  dup2(start.typed ? pipes[1][1] : open("/dev/null", O_RDONLY | O_CLOEXEC), STDIN_FILENO);
  dup2(pipes[0][1], STDOUT_FILENO);
  dup2(pipes[1][1], STDERR_FILENO);
  if (start.output == Start::Output::Closed) close(STDOUT_FILENO);
  if (start.errors == Start::Output::Closed) close(STDERR_FILENO);
  setEnvironment(start);
  if (start.openFiles) limitOpenFiles(*start.openFiles);
  if (start.unprivileged) becomeNobody();
  std::vector<char*> arguments{const_cast<char*>("quillmere-settings")};
  for (const std::string& each : start.arguments)
    arguments.push_back(const_cast<char*>(each.c_str()));
  arguments.push_back(nullptr);
  fexecve(program, arguments.data(), environ);
  _exit(127);
}

/// Puts a terminal on which that was typed in the place of a pipe.
void becomeTerminal(int (&ends)[2], const std::string& typed) {
  for (const int end : ends) close(end);
  if (openpty(&ends[0], &ends[1], nullptr, nullptr, nullptr) != 0) {
    throw std::runtime_error("no terminal");
  }
  for (const int end : ends) fcntl(end, F_SETFD, FD_CLOEXEC);
  if (write(ends[0], typed.data(), typed.size()) != static_cast<ssize_t>(typed.size())) {
    throw std::runtime_error("nothing can be typed");
  }
}

}  // namespace

Program::Program(const Start& start) {
  int pipes[2][2];
  for (auto& each : pipes) {
    if (pipe2(each, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  }
  if (start.typed) becomeTerminal(pipes[1], *start.typed);
  process_ = fork();
  if (process_ < 0) throw std::runtime_error("no process");
  if (process_ == 0) become(start, pipes);
  const Start::Output outputs[] = {start.output, start.errors};
  for (int i = 0; i < 2; ++i) {
    close(pipes[i][1]);
    streams_[i] = pipes[i][0];
    if (outputs[i] == Start::Output::Broken) close(std::exchange(streams_[i], -1));
  }
}

Program::~Program() {
  if (process_ > 0) {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }
  for (const int stream : streams_) {
    if (stream >= 0) close(stream);
  }
}

bool Program::readSome(int milliseconds) {
  pollfd polled[2] = {{streams_[0], POLLIN, 0}, {streams_[1], POLLIN, 0}};
  if ((streams_[0] < 0 && streams_[1] < 0) || poll(polled, 2, milliseconds) <= 0) return false;
  for (int i = 0; i < 2; ++i) {
    if (polled[i].revents == 0) continue;
    std::array<char, 4096> bytes;
    const ssize_t got = read(streams_[i], bytes.data(), bytes.size());
    if (got > 0) {
      texts_[i].append(bytes.data(), static_cast<std::size_t>(got));
    } else {
      close(std::exchange(streams_[i], -1));
    }
  }
  return true;
}

std::string Program::firstLine() {
  const auto until = std::chrono::steady_clock::now() + patience;
  while (texts_[0].find('\n') == std::string::npos && streams_[0] >= 0 &&
         std::chrono::steady_clock::now() < until) {
    readSome(100);
  }
  return texts_[0].substr(0, texts_[0].find('\n'));
}

std::uint16_t Program::port() {
  const std::string line = firstLine();
  const std::size_t end = line.find("/?");
  const std::size_t colon = line.rfind(':', end);
  if (end == std::string::npos || colon == std::string::npos) {
    throw std::runtime_error("no port in \"" + line + "\", but: " + texts_[1]);
  }
  return static_cast<std::uint16_t>(std::stoi(line.substr(colon + 1)));
}

std::string Program::invitation() {
  const std::string line = firstLine();
  return line.substr(std::min(line.find("/?"), line.size()));
}

std::string Program::openFile(int number) const {
  return std::filesystem::read_symlink("/proc/" + std::to_string(process_) + "/fd/" +
                                       std::to_string(number));
}

void Program::signal(int number) const { kill(process_, number); }

void Program::hear() {
  while (readSome(0)) {
  }
}

End Program::end() {
  const auto until = std::chrono::steady_clock::now() + patience;
  int status = 0;
  while (waitpid(process_, &status, WNOHANG) == 0) {
    if (std::chrono::steady_clock::now() > until) kill(process_, SIGKILL);
    if (!readSome(10)) std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  process_ = -1;
  hear();
  return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), texts_[0], texts_[1]};
}

End run(const Start& start) { return Program(start).end(); }

}  // namespace program_tests
