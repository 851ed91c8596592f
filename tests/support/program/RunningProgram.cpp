#include "tests/support/program/RunningProgram.h"

#include <csignal>

namespace program_tests {

void RunningProgram::TearDown() {
  EXPECT_EQ(statusOf(get("/")), 200);
  program.signal(SIGTERM);
  const End end = program.end();
  EXPECT_EQ(end.exitCode, 0) << end.err;
  EXPECT_EQ(end.err, "");
}

std::string RunningProgram::get(const std::string& path) const {
  return answerTo(port, filled("GET {HOME}" + path +
                               " HTTP/1.1\r\nHost: {HOST}\r\nCookie: {COOKIE}\r\n"
                               "Connection: close\r\n\r\n"));
}

std::string RunningProgram::filled(std::string text) const {
  const std::pair<std::string, std::string> values[] = {
      {"{HOST}", pass.host()}, {"{ORIGIN}", pass.origin()}, {"{COOKIE}", pass.cookie},
      {"{HOME}", pass.home},   {"{TOKEN}", invitation},
  };
  for (const auto& [name, value] : values) {
    for (std::size_t at; (at = text.find(name)) != std::string::npos;) {
      text.replace(at, name.size(), value);
    }
  }
  return text;
}

}  // namespace program_tests
