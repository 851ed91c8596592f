#include "tests/support/program/WebSocket.h"

namespace program_tests {

namespace {

std::string bigEndian(std::uint64_t number, int bytes) {
  std::string text;
  for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8) {
    text += static_cast<char>(number >> shift & 0xff);
  }
  return text;
}

std::uint64_t fromBigEndian(std::string_view bytes) {
  std::uint64_t number = 0;
  for (const char byte : bytes) number = number << 8 | static_cast<unsigned char>(byte);
  return number;
}

constexpr char finalBit = '\x80';
constexpr char maskBit = '\x80';
constexpr std::string_view mask = "mask";

/// The length in the fewest bytes, with the bit that announces a mask.
std::string maskedLength(std::size_t length) {
  if (length < 126) return {static_cast<char>(static_cast<char>(length) | maskBit)};
  if (length < 65536) return static_cast<char>(126 | maskBit) + bigEndian(length, 2);
  return static_cast<char>(127 | maskBit) + bigEndian(length, 8);
}

}  // namespace

std::string frame(Opcode opcode, std::string_view payload, Final final) {
  const char first = static_cast<char>(opcode);
  std::string bytes(1, final == Final::Yes ? static_cast<char>(first | finalBit) : first);
  bytes += maskedLength(payload.size());
  bytes += mask;
  for (std::size_t i = 0; i < payload.size(); ++i) {
    bytes += static_cast<char>(payload[i] ^ mask[i % mask.size()]);
  }
  return bytes;
}

WebSocket::WebSocket(const Pass& pass, const std::string& fields) : connection_(pass.port) {
  connection_.send("GET " + pass.home + "/socket HTTP/1.1\r\nHost: " + pass.host() +
                   "\r\nUpgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
                   "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n" +
                   fields + "\r\n");
  status_ = statusOf(connection_.receiveUntil("\r\n\r\n"));
}

WebSocket::Frame WebSocket::receive() const {
  const std::string head = connection_.receive(2);
  if (head.size() < 2) return {Opcode::Close, ""};
  std::uint64_t length = static_cast<unsigned char>(head[1]) & 0x7f;
  if (length == 126) length = fromBigEndian(connection_.receive(2));
  if (length == 127) length = fromBigEndian(connection_.receive(8));
  return {static_cast<Opcode>(head[0] & 0x0f), length ? connection_.receive(length) : ""};
}

nlohmann::json WebSocket::message() const {
  const Frame received = receive();
  if (received.opcode != Opcode::Text) return nullptr;
  return nlohmann::json::parse(received.payload);
}

}  // namespace program_tests
