#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace program_tests {

/// A connection to a server on this computer, on which any bytes can be sent.
class Connection {
 public:
  explicit Connection(std::uint16_t port);
  Connection(Connection&& other) noexcept;
  Connection& operator=(const Connection&) = delete;
  ~Connection();

  /// As much as the server takes; it may have closed the connection.
  void send(std::string_view bytes) const;
  /// No more will be sent.
  void finish() const;

  /// Exactly that many bytes; fewer when the server closes the connection or sends nothing for 10
  /// seconds.
  std::string receive(std::size_t count) const;
  /// Up to and with that text, or as `receive`.
  std::string receiveUntil(std::string_view end) const;
  /// All until the server closes the connection.
  std::string receiveAll() const { return receive(std::string::npos); }
  /// Whether the server closes the connection within 10 seconds, with nothing more sent.
  bool isClosed() const;

  /// The socket, for what looks after several at once.
  int number() const { return socket_; }

 private:
  int socket_;
};

/// Sends the bytes and gives all that comes until the server closes the connection.
std::string answerTo(std::uint16_t port, std::string_view bytes);

/// The status of an HTTP response; 0 when it is none.
int statusOf(std::string_view response);

/// The value of the first such field; empty when there is none.
std::string fieldOf(std::string_view response, std::string_view name);

}  // namespace program_tests
