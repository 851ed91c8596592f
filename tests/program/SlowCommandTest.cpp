#include <csignal>
#include <gtest/gtest.h>

#include "tests/support/program/SubCommands.h"
#include "tests/support/program/WebSocket.h"

namespace program_tests {
namespace {

using nlohmann::json;

/// The page of a program whose user has a command run that takes its time.
class SlowCommand : public SubCommands {
 protected:
  WebSocket page() {
    WebSocket socket(letIn(program));
    socket.message();
    return socket;
  }

  Start limited() const {
    Start start = startAt({"--ios-version", "12.4", "--notify-command", noting() + "; sleep 20"});
    start.openFiles = 24;
    return start;
  }

  Program program{limited()};
};

TEST_F(SlowCommand, CostsNoChangeHoweverFewFilesMayBeOpen) {
  const WebSocket socket = page();
  socket.touch({{"kind", "tap"}, {"id", "page1.group0.row1"}});
  socket.message();
  const std::string slider = "page2.group2.row0";
  constexpr int changes = 520;
  for (int change = 0; change < changes; ++change) {
    const int size = 1 + change % 200;
    socket.touch({{"kind", "slide"}, {"id", slider}, {"value", size}});
    ASSERT_EQ(socket.message()["nodes"][slider]["value"], size) << "change " << change;
    ASSERT_EQ(stored("clockDigitSize"), plist::Value::real(static_cast<float>(size)))
        << "change " << change;
    program.hear();
  }
  program.signal(SIGTERM);
  const End end = program.end();
  EXPECT_EQ(end.exitCode, 0);
  EXPECT_EQ(end.err.find("Too many open files"), std::string::npos) << end.err;
  EXPECT_NE(end.err.find("64 runs of it wait already"), std::string::npos) << end.err;
  EXPECT_NE(end.err.find("did not get to 64 of its runs"), std::string::npos) << end.err;
  EXPECT_EQ(noted(), "com.orvalen.quillmere.prefs-changed\n");
}

}  // namespace
}  // namespace program_tests
