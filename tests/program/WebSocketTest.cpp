#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "plist/Document.h"
#include "tests/support/program/RunningProgram.h"
#include "tests/support/program/WebSocket.h"

namespace program_tests {
namespace {

using nlohmann::json;

class WebSocketTest : public RunningProgram {
 protected:
  WebSocket handshake(const std::string& fields) const { return {pass, filled(fields)}; }

  /// A page that has the whole screen.
  WebSocket page() const {
    WebSocket socket = handshake("Cookie: {COOKIE}\r\nOrigin: {ORIGIN}\r\n");
    EXPECT_EQ(socket.status(), 101);
    EXPECT_EQ(socket.message()["kind"], "screen");
    return socket;
  }

  static void expectAnswers(const WebSocket& socket) {
    socket.touch({{"kind", "fly"}});
    EXPECT_EQ(socket.message(),
              json({{"kind", "refused"}, {"reason", "there is no touch \"fly\""}}));
  }

  const json openClock{{"kind", "tap"}, {"id", "page1.group0.row1"}};
};

TEST_F(WebSocketTest, AsksForCookieAndOrigin) {
  EXPECT_EQ(handshake("").status(), 403);
  EXPECT_EQ(handshake("Origin: {ORIGIN}\r\n").status(), 403);
  EXPECT_EQ(handshake("Cookie: {COOKIE}\r\n").status(), 403);
  for (const char* origin : {"null", "http://example.com", "http://localhost", "https://{HOST}",
                             "http://127.0.0.1", "http://{HOST}.example.com"}) {
    EXPECT_EQ(handshake("Cookie: {COOKIE}\r\nOrigin: " + std::string(origin) + "\r\n").status(),
              403)
        << origin;
  }
}

TEST_F(WebSocketTest, SendsTheWholeScreenFirst) {
  const WebSocket socket = handshake("Cookie: {COOKIE}\r\nOrigin: {ORIGIN}\r\n");
  const json screen = socket.message();
  EXPECT_EQ(screen["kind"], "screen");
  EXPECT_EQ(screen["nodes"]["window"]["children"], json({"page1"}));
}

TEST_F(WebSocketTest, KeepsEveryPageInStep) {
  const WebSocket first = page();
  const WebSocket second = page();
  first.touch(openClock);
  const json update = first.message();
  EXPECT_EQ(update["kind"], "update");
  EXPECT_EQ(second.message(), update);
}

TEST_F(WebSocketTest, AnswersATouchThatChangesNothing) {
  const WebSocket socket = page();
  socket.touch(openClock);
  socket.message();
  const json same{{"kind", "slide"}, {"id", "page2.group2.row0"}, {"value", 75}};
  socket.touch(same);
  EXPECT_EQ(socket.message(), json::parse(R"({"kind":"update","nodes":{},"removed":[]})"));
}

TEST_F(WebSocketTest, StoresWhatIsTouched) {
  const WebSocket socket = page();
  socket.touch(openClock);
  socket.message();
  socket.touch({{"kind", "toggle"}, {"id", "page2.group0.row0"}, {"on", false}});
  EXPECT_EQ(socket.message()["nodes"]["page2.group0.row0"]["on"], false);
  std::ifstream stream(preferences(), std::ios::binary);
  const plist::Document document = plist::read({std::istreambuf_iterator<char>(stream), {}});
  ASSERT_TRUE(document.root.dictionary());
  EXPECT_EQ(*document.root.dictionary()->find("clockEnabled"), plist::Value(false));
}

TEST_F(WebSocketTest, MessagesOver64KiBCloseOnlyThatSocket) {
  const WebSocket other = page();
  const WebSocket socket = page();
  socket.send(frame(Opcode::Text, std::string(64 * 1024 + 1, ' ')));
  EXPECT_EQ(socket.message(), nullptr);
  expectAnswers(other);
}

TEST_F(WebSocketTest, MessagesOver64KiBInPiecesCloseOnlyThatSocket) {
  const WebSocket other = page();
  const WebSocket socket = page();
  socket.send(frame(Opcode::Text, std::string(40'000, ' '), Final::No));
  socket.send(frame(Opcode::More, std::string(40'000, ' ')));
  EXPECT_EQ(socket.message(), nullptr);
  expectAnswers(other);
}

TEST_F(WebSocketTest, MessagesOf64KiBAreAnswered) {
  const WebSocket socket = page();
  socket.send(frame(Opcode::Text, std::string(64 * 1024, ' ')));
  EXPECT_EQ(socket.message()["kind"], "refused");
}

TEST_F(WebSocketTest, BinaryMessagesAreNoTouches) {
  const WebSocket socket = page();
  socket.send(frame(Opcode::Binary, "\x01\xff\xfe"));
  EXPECT_EQ(socket.message()["kind"], "refused");
  expectAnswers(socket);
}

TEST_F(WebSocketTest, FramesThatBreakTheProtocolCloseOnlyThatSocket) {
  const WebSocket other = page();
  const std::string good = frame(Opcode::Text, "{}");
  std::string unmasked("\x81\x02{}", 4);
  std::string reserved = good;
  reserved[0] = static_cast<char>(reserved[0] | 0x40);
  for (const std::string& bytes :
       {unmasked, reserved, frame(Opcode::Text, "\xff\xfe"), frame(Opcode::More, "{}"),
        frame(static_cast<Opcode>(3), "{}"), frame(Opcode::Ping, std::string(126, 'x')),
        frame(Opcode::Text, "{", Final::No) + good, std::string("\x81\xff\xff", 3)}) {
    const WebSocket socket = page();
    socket.send(bytes);
    if (bytes.size() == 3) continue;  // Only begun; it goes away with the socket.
    EXPECT_EQ(socket.message(), nullptr);
  }
  expectAnswers(other);
}

TEST_F(WebSocketTest, PiecesMakeOneMessage) {
  const WebSocket socket = page();
  const std::string text = openClock.dump();
  socket.send(frame(Opcode::Text, text.substr(0, 10), Final::No));
  socket.send(frame(Opcode::Ping, "between"));
  socket.send(frame(Opcode::More, text.substr(10)));
  const WebSocket::Frame pong = socket.receive();
  EXPECT_EQ(pong.opcode, Opcode::Pong);
  EXPECT_EQ(pong.payload, "between");
  EXPECT_EQ(socket.message()["kind"], "update");
}

TEST_F(WebSocketTest, ClosesWhenThePageDoes) {
  const WebSocket socket = page();
  socket.send(frame(Opcode::Close, ""));
  EXPECT_EQ(socket.receive().opcode, Opcode::Close);
}

TEST_F(WebSocketTest, EndlessTouchesOfAPageThatDoesNotReadHarmNothing) {
  const WebSocket other = page();
  {
    const WebSocket deaf = page();
    std::string many;
    for (int i = 0; i < 5000; ++i) many += frame(Opcode::Text, R"({"kind":"fly"})");
    deaf.send(many);
  }
  expectAnswers(other);
}

TEST_F(WebSocketTest, IsNoPlaceForOrdinaryRequests) { EXPECT_EQ(statusOf(get("/socket")), 404); }

TEST_F(WebSocketTest, MoreThan64ConnectionsAreTurnedAway) {
  std::vector<WebSocket> pages;
  for (int count = 0; count < 64; ++count) pages.push_back(page());
  EXPECT_TRUE(Connection(port).isClosed());
  expectAnswers(pages.front());
  expectAnswers(pages.back());
  pages.clear();
  for (int attempt = 0; attempt < 100 && statusOf(get("/")) != 200; ++attempt) {
  }
  EXPECT_EQ(statusOf(get("/")), 200);
}

TEST_F(WebSocketTest, OpenPagesDoNotKeepTheProgramFromEnding) {
  const WebSocket first = page();
  const WebSocket second = page();
  Program another({{"--root", folder.path.string()}});
  const Connection idle(another.port());
  another.signal(15);
  const End end = another.end();
  EXPECT_EQ(end.exitCode, 0) << end.err;
}

}  // namespace
}  // namespace program_tests
