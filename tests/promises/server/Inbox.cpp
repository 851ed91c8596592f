#include "tests/promises/server/Inbox.h"

#include <array>
#include <cerrno>
#include <optional>
#include <sys/socket.h>

namespace promises {

using program_tests::Opcode;

namespace {

/// A frame at the front of the bytes; none when it is not whole yet (RFC 6455, section 5.2).
struct Frame {
  Opcode opcode;
  std::string_view payload;
};

std::optional<Frame> frontOf(std::string_view bytes) {
  if (bytes.size() < 2) return std::nullopt;
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
  std::size_t length = byte(1);
  const std::size_t digits = length == 126 ? 2 : length == 127 ? 8 : 0;
  if (bytes.size() < 2 + digits) return std::nullopt;
  if (digits > 0) length = 0;
  for (std::size_t at = 0; at < digits; ++at) length = length << 8 | byte(2 + at);
  if (bytes.size() - 2 - digits < length) return std::nullopt;
  return Frame{static_cast<Opcode>(byte(0) & 0x0f), bytes.substr(2 + digits, length)};
}

}  // namespace

bool Inbox::take(const std::function<void(std::string_view)>& handle) {
  const bool isOpen = fill();
  std::string_view rest = bytes_;
  while (const auto frame = frontOf(rest)) {
    handOn(frame->opcode, frame->payload, handle);
    rest = {frame->payload.end(), rest.end()};
  }
  bytes_.erase(0, bytes_.size() - rest.size());
  return isOpen;
}

bool Inbox::fill() {
  std::array<char, 65536> some;
  for (;;) {
    const ssize_t got = recv(page_.connection().number(), some.data(), some.size(), MSG_DONTWAIT);
    if (got <= 0) return got < 0 && errno == EAGAIN;
    bytes_.append(some.data(), static_cast<std::size_t>(got));
  }
}

void Inbox::handOn(Opcode opcode, std::string_view payload,
                   const std::function<void(std::string_view)>& handle) {
  if (opcode == Opcode::Text) handle(payload);
  if (opcode == Opcode::Ping) page_.send(frame(Opcode::Pong, payload));
}

}  // namespace promises
