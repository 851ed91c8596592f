#include "tests/support/program/Pass.h"

#include <stdexcept>

#include "tests/support/program/Connection.h"

namespace program_tests {

Pass letIn(std::uint16_t port, std::string_view invitation) {
  Pass pass{.port = port, .cookie = {}, .home = {}};
  const std::string response =
      answerTo(port, "GET " + std::string(invitation) + " HTTP/1.1\r\nHost: " + pass.host() +
                         "\r\nConnection: close\r\n\r\n");
  const std::string cookie = fieldOf(response, "Set-Cookie");
  pass.cookie = cookie.substr(0, cookie.find(';'));
  pass.home = fieldOf(response, "Location");
  if (pass.cookie.empty() || !pass.home.ends_with('/')) {
    throw std::runtime_error("nobody is let in: " + response);
  }
  pass.home.pop_back();
  return pass;
}

}  // namespace program_tests
