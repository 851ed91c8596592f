#include <csignal>
#include <fstream>
#include <gtest/gtest.h>

#include "tests/program/RunningProgram.h"
#include "tests/program/WebSocket.h"

namespace program_tests {
namespace {

using nlohmann::json;

/// Another program runs over the same folder.
class SharedFolder : public RunningProgram {
 protected:
  SharedFolder() {
    const std::string response =
        answerTo(other.port(), "GET " + other.invitation() + " HTTP/1.0\r\nHost: 127.0.0.1:" +
                                   std::to_string(other.port()) + "\r\n\r\n");
    otherCookie = fieldOf(response, "Set-Cookie");
    otherCookie = otherCookie.substr(0, otherCookie.find(';'));
  }

  WebSocket pageOf(std::uint16_t at, const std::string& withCookie) const {
    WebSocket socket(at, "Cookie: " + withCookie +
                             "\r\nOrigin: http://127.0.0.1:" + std::to_string(at) + "\r\n");
    EXPECT_EQ(socket.status(), 101);
    socket.message();
    return socket;
  }

  Program other{{arguments}};
  std::string otherCookie;
  const json openClock{{"kind", "tap"}, {"id", "page1.group0.row1"}};
};

TEST_F(SharedFolder, HasCookiesThatAreNoGoodToTheOtherProgram) {
  EXPECT_EQ(WebSocket(port, filled("Cookie: " + otherCookie + "\r\nOrigin: {ORIGIN}\r\n")).status(),
            403);
  EXPECT_EQ(WebSocket(port, filled("Cookie: {COOKIE}; " + otherCookie + "\r\nOrigin: {ORIGIN}\r\n"))
                .status(),
            101);
}

TEST_F(SharedFolder, ShowsWhatTheOtherProgramStored) {
  const WebSocket first = pageOf(port, cookie);
  const WebSocket second = pageOf(other.port(), otherCookie);
  first.touch(openClock);
  first.message();
  first.touch({{"kind", "toggle"}, {"id", "page2.group0.row0"}, {"on", false}});
  first.message();
  second.touch(openClock);
  EXPECT_EQ(second.message()["nodes"]["page2.group0.row0"]["on"], false);
}

TEST_F(SharedFolder, KeepsTheChangesOfBoth) {
  const WebSocket first = pageOf(port, cookie);
  const WebSocket second = pageOf(other.port(), otherCookie);
  for (const WebSocket* page : {&first, &second}) {
    page->touch(openClock);
    page->message();
  }
  for (int round = 0; round < 50; ++round) {
    first.touch({{"kind", "slide"}, {"id", "page2.group2.row0"}, {"value", 10 + round}});
    first.message();
    second.touch({{"kind", "slide"}, {"id", "page2.group3.row0"}, {"value", round}});
    second.message();
  }
  first.touch({{"kind", "tap"}, {"id", "page2.back"}});
  first.message();
  first.touch(openClock);
  const json shown = first.message()["nodes"];
  EXPECT_EQ(shown["page3.group2.row0"]["value"], 59.0);
  EXPECT_EQ(shown["page3.group3.row0"]["value"], 49.0);
}

}  // namespace
}  // namespace program_tests
