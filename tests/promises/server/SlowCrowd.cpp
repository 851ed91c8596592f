#include "tests/promises/server/SlowCrowd.h"

#include <cerrno>
#include <memory>
#include <sys/socket.h>

namespace promises {

using program_tests::Connection;
using namespace std::chrono_literals;

namespace {

/// As much as there is room for.
void sendWithoutWaiting(const Connection& connection, std::string_view bytes) {
  ::send(connection.number(), bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
}

/// Whether the server has dropped it; what it sent before is left unread.
bool isDropped(const Connection& connection) {
  int error = 0;
  socklen_t size = sizeof error;
  getsockopt(connection.number(), SOL_SOCKET, SO_ERROR, &error, &size);
  char byte;
  const ssize_t got = recv(connection.number(), &byte, 1, MSG_PEEK | MSG_DONTWAIT);
  return error != 0 || got == 0 || (got < 0 && errno != EAGAIN);
}

}  // namespace

SlowCrowd::SlowCrowd(std::uint16_t port, std::vector<Kind> kinds, std::size_t size)
    : port_(port), kinds_(std::move(kinds)) {
  while (members_.size() < size) members_.push_back(made(kinds_[members_.size() % kinds_.size()]));
  thread_ = std::jthread([this](const std::stop_token& stop) { run(stop); });
}

SlowCrowd::~SlowCrowd() = default;

SlowCrowd::Member SlowCrowd::made(const Kind& kind) {
  Member member{&kind, Connection(port_)};
  sendWithoutWaiting(member.connection, kind.first);
  ++come_;
  return member;
}

void SlowCrowd::drip(Member& member) const {
  const std::string& slowly = member.kind->slowly;
  if (slowly.empty() || Clock::now() < member.next) return;
  member.next += 1s;
  sendWithoutWaiting(member.connection, slowly.substr(member.dripped++ % slowly.size(), 1));
}

void SlowCrowd::run(const std::stop_token& stop) {
  for (std::size_t each = 0; !stop.stop_requested(); each = (each + 1) % members_.size()) {
    Member& member = members_[each];
    drip(member);
    if (isDropped(member.connection)) {
      std::destroy_at(&member);
      std::construct_at(&member, made(kinds_[each % kinds_.size()]));
    }
    std::this_thread::sleep_for(1ms);
  }
}

}  // namespace promises
