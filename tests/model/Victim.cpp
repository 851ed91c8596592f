#include "tests/model/Victim.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include "tests/model/Run.h"

namespace model {

namespace {

constexpr std::size_t longestLine = 1 << 16;

[[noreturn]] void fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

/// A line is sent as one packet, behind a mark that tells an empty one from the end.
void say(int socket, const std::string& line) {
  const std::string packet = '.' + line.substr(0, longestLine - 1);
  if (send(socket, packet.data(), packet.size(), MSG_NOSIGNAL) < 0) _exit(1);
}

struct Order {
  Operation operation;
  std::chrono::microseconds::rep death;  ///< 0 for none.
};

/// Lets the kernel kill this process (SIGKILL) after that many microseconds; never after 0.
void dieAfter(std::chrono::microseconds::rep time) {
  sigevent event{};
  event.sigev_notify = SIGEV_SIGNAL;
  event.sigev_signo = SIGKILL;
  timer_t timer{};
  const itimerspec once{{}, {time / 1'000'000, time % 1'000'000 * 1000}};
  if (timer_create(CLOCK_MONOTONIC, &event, &timer) < 0) fail("timer_create");
  if (timer_settime(timer, 0, &once, nullptr) < 0) fail("timer_settime");
}

/// What the process does until it is killed, or nobody orders any more.
void obey(int socket, const std::filesystem::path& phone, const Kept& kept) {
  World world(phone, kept);
  say(socket, "");
  Order order{};
  while (recv(socket, &order, sizeof order, 0) == sizeof order) {
    Run run;
    if (order.death > 0) dieAfter(order.death);
    step(world, order.operation, run, [socket] { say(socket, ""); });
    say(socket, run.failure);
  }
}

[[noreturn]] void run(int socket, const std::filesystem::path& phone, const Kept& kept) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  try {
    obey(socket, phone, kept);
  } catch (const std::exception& raised) {
    say(socket, std::string("raised: ") + raised.what());
  }
  _exit(0);
}

}  // namespace

Victim::Victim(const std::filesystem::path& phone, const Kept& kept, Moment death) {
  std::array<int, 2> ends{};
  if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) < 0) fail("socketpair");
  ours_ = desktop::Descriptor(ends[0]);
  const desktop::Descriptor its(ends[1]);
  process_ = fork();
  if (process_ < 0) fail("fork");
  if (process_ > 0) return;
  close(ours_.release());
  if (death) dieAfter(death->count());
  run(its.number(), phone, kept);
}

void Victim::order(const Operation& operation, Moment death) const {
  const Order order{operation, death ? death->count() : 0};
  if (send(ours_.number(), &order, sizeof order, MSG_NOSIGNAL) < 0) fail("send");
}

std::optional<std::string> Victim::line() const {
  std::string packet(longestLine, '\0');
  const ssize_t size = recv(ours_.number(), packet.data(), packet.size(), 0);
  if (size <= 0) return std::nullopt;
  return packet.substr(1, static_cast<std::size_t>(size) - 1);
}

void Victim::kill() {
  if (process_ < 0) return;
  ::kill(process_, SIGKILL);
  while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
  }
  process_ = -1;
}

}  // namespace model
