#include <gtest/gtest.h>
#include <sys/socket.h>

#include "tests/promises/server/Served.h"
#include "tests/support/Figures.h"

namespace promises {
namespace {

using program_tests::Connection;

/// A close that is no farewell but a reset: nothing lingers.
void reset(const Connection& connection) {
  constexpr linger atOnce{1, 0};
  setsockopt(connection.number(), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
}

/// The ways in which a page goes that has the whole screen.
constexpr void (*waysToGo[])(const WebSocket&) = {
    [](const WebSocket&) {},
    [](const WebSocket& page) { page.send(frame(Opcode::Close, "")); },
    [](const WebSocket& page) { page.connection().finish(); },
    [](const WebSocket& page) { reset(page.connection()); },
    [](const WebSocket& page) { page.send(frame(Opcode::Text, openClock.dump()).substr(0, 9)); },
    [](const WebSocket& page) {
      page.send(frame(Opcode::Text, openClock.dump()).substr(0, 9));
      reset(page.connection());
    },
    // Its touch is carried out, and nobody is there to hear of it.
    [](const WebSocket& page) {
      page.touch({{"kind", "scroll"}, {"id", "page1"}, {"y", 100}});
      reset(page.connection());
    },
};

class Reconnects : public Served {
 protected:
  void comeAndGo(std::size_t times) const {
    const std::string handshake = filled("GET {HOME}/socket HTTP/1.1\r\nHost: {HOST}\r\n") +
                                  pass.fields() + "Upgrade: websocket\r\n";
    for (std::size_t each = 0; each < times && !HasFailure(); ++each) {
      if (each % 8 == 7) {
        Connection(port).send(handshake);
      } else {
        waysToGo[each % std::size(waysToGo)](page());
      }
    }
  }
};

TEST_F(Reconnects, LeaveNothingBehindHoweverPagesGo) {
  const Use alone = use();
  const std::size_t times = support::inForm<std::size_t>(300, 5'000);
  comeAndGo(times / 5);
  const Use before = use();
  comeAndGo(times - times / 5);
  EXPECT_EQ(descriptorsDownTo(alone.descriptors), alone.descriptors);
  const Use after = use();
  EXPECT_LT(grownPercent(before, after), 5);
  support::note(support::grouped(times) + " reconnects, most of them cut off",
                growth({before.memory, alone.descriptors}, after), "it stays up, nothing is left");
}

TEST_F(Reconnects, APageThatReadsNothingIsDroppedAndKeepsNobodyWaiting) {
  const WebSocket editor = page();
  const Use before = use();
  const WebSocket deaf = page();
  constexpr int little = 4096;
  setsockopt(deaf.connection().number(), SOL_SOCKET, SO_RCVBUF, &little, sizeof little);
  const int times = support::inForm(3'000, 20'000);
  for (int each = 0; each < times && !HasFailure(); each += 2) {
    const std::string number = std::to_string(2 + each / 2);
    editor.touch(openClock);
    EXPECT_EQ(editor.message()["kind"], "update");
    editor.touch({{"kind", "tap"}, {"id", "page" + number + ".back"}});
    EXPECT_EQ(editor.message()["kind"], "update");
  }
  EXPECT_EQ(use().descriptors, before.descriptors);
  EXPECT_LT(use().memory, before.memory + 1024);
  support::note(
      "a page that reads nothing of " + support::grouped(static_cast<unsigned>(times)) + " changes",
      "dropped, " + growth(before, use()), "dropped; under 1 MiB more");
}

}  // namespace
}  // namespace promises
