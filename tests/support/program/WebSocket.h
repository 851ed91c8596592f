#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "tests/support/program/Connection.h"
#include "tests/support/program/Pass.h"

namespace program_tests {

/// What a frame is, by its number in RFC 6455, section 5.2.
enum class Opcode : std::uint8_t { More = 0, Text = 1, Binary = 2, Close = 8, Ping = 9, Pong = 10 };

enum class Final : bool { No, Yes };

/// A client's frame with that payload, masked as clients have to.
std::string frame(Opcode opcode, std::string_view payload, Final final = Final::Yes);

/// A page's end of the WebSocket.
class WebSocket {
 public:
  /// `fields` are further fields of the handshake, each with its line end.
  WebSocket(const Pass& pass, const std::string& fields);
  explicit WebSocket(const Pass& pass) : WebSocket(pass, pass.fields()) {}

  /// The status that the handshake was answered with.
  int status() const { return status_; }

  void send(std::string_view bytes) const { connection_.send(bytes); }
  void touch(const nlohmann::json& message) const { send(frame(Opcode::Text, message.dump())); }

  struct Frame {
    Opcode opcode;
    std::string payload;
  };
  /// The next frame; a close frame when the connection ends.
  Frame receive() const;
  /// The next message; null when the socket is closed instead.
  nlohmann::json message() const;

  const Connection& connection() const { return connection_; }

 private:
  Connection connection_;
  int status_;
};

}  // namespace program_tests
