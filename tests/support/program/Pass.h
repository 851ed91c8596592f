#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tests/support/program/Program.h"

namespace program_tests {

/// What a browser has once the program has let it in.
struct Pass {
  std::uint16_t port;
  std::string cookie;  ///< "NAME=SECRET"
  std::string home;    ///< The path of the page, without the "/" at its end.

  std::string host() const { return "127.0.0.1:" + std::to_string(port); }
  std::string origin() const { return "http://" + host(); }

  /// What a page says with its handshake, each field with its line end.
  std::string fields() const { return "Cookie: " + cookie + "\r\nOrigin: " + origin() + "\r\n"; }
};

/// Accepts an invitation, "/?token=…". Throws `std::runtime_error` when that lets nobody in.
Pass letIn(std::uint16_t port, std::string_view invitation);
inline Pass letIn(Program& program) { return letIn(program.port(), program.invitation()); }

}  // namespace program_tests
