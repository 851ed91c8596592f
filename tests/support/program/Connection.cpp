#include "tests/support/program/Connection.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <netinet/in.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>
#include <utility>

namespace program_tests {

Connection::Connection(std::uint16_t port)
    : socket_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  constexpr timeval patience{10, 0};
  setsockopt(socket_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
  setsockopt(socket_, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (connect(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
    close(socket_);
    throw std::runtime_error("nobody listens on port " + std::to_string(port));
  }
}

Connection::Connection(Connection&& other) noexcept : socket_(std::exchange(other.socket_, -1)) {}

Connection::~Connection() {
  if (socket_ >= 0) close(socket_);
}

void Connection::send(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t sent = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) return;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
}

void Connection::finish() const { shutdown(socket_, SHUT_WR); }

std::string Connection::receive(std::size_t count) const {
  std::string text;
  std::array<char, 65536> bytes;
  while (text.size() < count) {
    const ssize_t got = recv(socket_, bytes.data(), std::min(bytes.size(), count - text.size()), 0);
    if (got <= 0) break;
    text.append(bytes.data(), static_cast<std::size_t>(got));
  }
  return text;
}

std::string Connection::receiveUntil(std::string_view end) const {
  std::string text;
  while (!text.ends_with(end)) {
    const std::string next = receive(1);
    if (next.empty()) break;
    text += next;
  }
  return text;
}

bool Connection::isClosed() const {
  char byte;
  const ssize_t got = recv(socket_, &byte, 1, 0);
  return got == 0 || (got < 0 && errno == ECONNRESET);
}

std::string answerTo(std::uint16_t port, std::string_view bytes) {
  const Connection connection(port);
  connection.send(bytes);
  return connection.receiveAll();
}

int statusOf(std::string_view response) {
  if (!response.starts_with("HTTP/1.") || response.size() < 12) return 0;
  return std::stoi(std::string(response.substr(9, 3)));
}

std::string fieldOf(std::string_view response, std::string_view name) {
  const std::string before = "\r\n" + std::string(name) + ": ";
  const std::size_t start = response.find(before);
  if (start == std::string_view::npos) return "";
  const std::string_view value = response.substr(start + before.size());
  return std::string(value.substr(0, value.find("\r\n")));
}

}  // namespace program_tests
