#include "bench/peers/SessionBus.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include "bench/support/Contestant.h"

namespace bench {

namespace {

/// The child's part. It ends with its parent, however that ends.
[[noreturn]] void becomeDaemon(int output) {
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  dup2(output, STDOUT_FILENO);
  dup2(open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO);  // It tells of each service.
  // An abstract address: a path below the benchmark's folder could be too long for a socket.
  const std::string address = "--address=unix:abstract=bench-session-" + std::to_string(getpid());
  execlp("dbus-daemon", "dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1",
         address.c_str(), nullptr);
  _exit(127);
}

std::string firstLine(int from) {
  std::string line;
  for (char next; read(from, &next, 1) == 1 && next != '\n';) line += next;
  return line;
}

}  // namespace

SessionBus::SessionBus() {
  std::array<int, 2> ends;
  if (pipe2(ends.data(), O_CLOEXEC) != 0)
    throw std::system_error(errno, std::generic_category(), "pipe");
  daemon_ = fork();
  if (daemon_ == 0) becomeDaemon(ends[1]);
  close(ends[1]);
  const std::string address = firstLine(ends[0]);
  close(ends[0]);
  if (address.empty()) throw Unavailable("dbus-daemon does not start");
  setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
}

SessionBus::~SessionBus() {
  kill(daemon_, SIGTERM);
  waitpid(daemon_, nullptr, 0);
  unsetenv("DBUS_SESSION_BUS_ADDRESS");
}

}  // namespace bench
