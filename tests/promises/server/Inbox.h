#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "tests/support/program/WebSocket.h"

namespace promises {

/// The messages that reach a page among others, none of which anybody waits for.
class Inbox {
 public:
  /// The page has to outlive its inbox.
  explicit Inbox(const program_tests::WebSocket& page) : page_(page) {}

  /// Hands on the text of each message that is there by now, and answers pings as a browser does;
  /// false when the program has closed the socket.
  bool take(const std::function<void(std::string_view)>& handle);

 private:
  bool fill();
  void handOn(program_tests::Opcode opcode, std::string_view payload,
              const std::function<void(std::string_view)>& handle);

  const program_tests::WebSocket& page_;
  std::string bytes_;
};

}  // namespace promises
