#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <ostream>
#include <random>

#include "tests/support/program/RunningProgram.h"

namespace program_tests {
namespace {

using namespace std::string_literals;

struct Hostile {
  const char* name;
  std::string bytes;
  int status;  ///< Of the answer; 0 when the connection is dropped without one.
};

std::ostream& operator<<(std::ostream& out, const Hostile& hostile) { return out << hostile.name; }

/// A request whose only fault is its first line.
std::string withFirstLine(const std::string& line) {
  return line + "\r\nHost: {HOST}\r\nCookie: {COOKIE}\r\nConnection: close\r\n\r\n";
}

/// A request whose only fault is in its further fields, or after them.
std::string withFields(const std::string& fields) {
  return "GET / HTTP/1.1\r\nHost: {HOST}\r\nCookie: {COOKIE}\r\nConnection: close\r\n" + fields +
         "\r\n";
}

std::string withHosts(const std::string& fields) {
  return "GET / HTTP/1.1\r\n" + fields + "Cookie: {COOKIE}\r\nConnection: close\r\n\r\n";
}

std::vector<Hostile> hostileRequests() {
  return {
      {"NoCookie", "GET / HTTP/1.1\r\nHost: {HOST}\r\nConnection: close\r\n\r\n", 403},
      {"NoHost", withHosts(""), 403},
      {"TwoHosts", withHosts("Host: {HOST}\r\nHost: {HOST}\r\n"), 403},
      {"AnotherHost", withHosts("Host: example.com\r\n"), 403},
      {"HostByName", withHosts("Host: localhost\r\n"), 403},
      {"TwoCookies", withFields("Cookie: {COOKIE}\r\n"), 403},
      {"AnotherOrigin", withFields("Origin: http://example.com\r\n"), 403},
      {"CrossSite", withFields("Sec-Fetch-Site: cross-site\r\n"), 403},
      {"AbsoluteForm", withFirstLine("GET http://{HOST}/ HTTP/1.1"), 404},
      {"AbsoluteFormElsewhere", withFirstLine("GET http://example.com/ HTTP/1.1"), 404},
      {"DoubleSlash", withFirstLine("GET // HTTP/1.1"), 404},
      {"Dots", withFirstLine("GET /../../../etc/passwd HTTP/1.1"), 404},
      {"EncodedDots", withFirstLine("GET /%2e%2e/%2e%2e/etc/passwd HTTP/1.1"), 404},
      {"EncodedSlash", withFirstLine("GET /..%2f..%2fetc%2fpasswd HTTP/1.1"), 404},
      {"Backslashes", withFirstLine("GET /..\\..\\etc\\passwd HTTP/1.1"), 404},
      {"EncodedNul", withFirstLine("GET /app.js%00 HTTP/1.1"), 404},
      {"PreferencesFile",
       withFirstLine("GET /var/mobile/Library/Preferences/com.orvalen.quillmere.plist HTTP/1.1"),
       404},
      {"NulInTarget", withFirstLine("GET /\0app.js HTTP/1.1"s), 0},
      {"NulInField", withFields("X: a\0b\r\n"s), 0},
      {"SpaceInTarget", withFirstLine("GET /a b HTTP/1.1"), 0},
      {"NoTarget", withFirstLine("GET  HTTP/1.1"), 0},
      {"OldestHttp", "GET /\r\n\r\n", 0},
      {"NextHttp", "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n", 0},
      {"NoHttp", "hello\r\n\r\n", 0},
      {"OnlyLineEnds", std::string(2000, '\n'), 0},
      {"BareLineFeeds", "GET / HTTP/1.1\nHost: {HOST}\nCookie: {COOKIE}\n\n", 0},
      {"SpaceBeforeColon", withFields("X : y\r\n"), 0},
      {"NoColon", withFields("X\r\n"), 0},
      {"NoFieldName", withFields(": y\r\n"), 0},
      {"HugeField", withFields("X: " + std::string(100'000, 'x') + "\r\n"), 0},
      {"HugeTarget", withFirstLine("GET /" + std::string(100'000, 'x') + " HTTP/1.1"), 0},
      {"ManyFields", withFields([] {
         std::string fields;
         for (int i = 0; i < 10'000; ++i) fields += "X: y\r\n";
         return fields;
       }()),
       0},
      {"UnknownMethod", withFirstLine("FLY / HTTP/1.1"), 405},
      {"Options", withFirstLine("OPTIONS * HTTP/1.1"), 405},
      {"Connect", withFirstLine("CONNECT example.com:80 HTTP/1.1"), 405},
      {"Trace", withFirstLine("TRACE / HTTP/1.1"), 405},
      {"PostWithoutBody", withFirstLine("POST / HTTP/1.1"), 405},
      {"Body", withFields("Content-Length: 5\r\n") + "hello", 0},
      {"EndlessBody", withFields("Content-Length: 18446744073709551615\r\n"), 0},
      {"NegativeBody", withFields("Content-Length: -1\r\n"), 0},
      {"TwoLengths", withFields("Content-Length: 0\r\nContent-Length: 5\r\n") + "hello", 0},
      {"LengthAndChunks",
       withFields("Content-Length: 5\r\nTransfer-Encoding: chunked\r\n") + "0\r\n\r\n", 0},
      {"ChunksAndLength",
       withFields("Transfer-Encoding: chunked\r\nContent-Length: 5\r\n") + "0\r\n\r\n", 0},
      {"Chunks", withFields("Transfer-Encoding: chunked\r\n") + "5\r\nhello\r\n0\r\n\r\n", 0},
      {"BadChunks", withFields("Transfer-Encoding: chunked\r\n") + "zz\r\n", 0},
      {"TransportSecurity", "\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03" + std::string(500, '\7'),
       0},
      {"UpgradeWithoutOrigin", withFields("Upgrade: websocket\r\nSec-WebSocket-Version: 13\r\n"),
       403},
      {"UpgradeFromElsewhere", withFields("Upgrade: websocket\r\nOrigin: http://example.com\r\n"),
       403},
  };
}

class HostileRequest : public RunningProgram, public testing::WithParamInterface<Hostile> {};

TEST_P(HostileRequest, GetsNothingAndHarmsNothing) {
  const Connection connection(port);
  connection.send(filled(GetParam().bytes));
  connection.finish();
  const std::string response = connection.receiveAll();
  EXPECT_EQ(statusOf(response), GetParam().status) << response.substr(0, 300);
  if (GetParam().status == 0) {
    EXPECT_EQ(response.substr(0, 300), "");
  }
  EXPECT_EQ(fieldOf(response, "Set-Cookie"), "");
  EXPECT_FALSE(std::filesystem::exists(preferences()));
}

INSTANTIATE_TEST_SUITE_P(Server, HostileRequest, testing::ValuesIn(hostileRequests()),
                         [](const auto& test) { return test.param.name; });

class ServerConnection : public RunningProgram {
 protected:
  /// A request for the first page that leaves the connection open.
  std::string request() const {
    return filled("GET / HTTP/1.1\r\nHost: {HOST}\r\nCookie: {COOKIE}\r\n\r\n");
  }
};

TEST_F(ServerConnection, IsDroppedWhenTheHeaderIsSlow) {
  const auto start = std::chrono::steady_clock::now();
  const Connection slow(port);
  slow.send("GET / HTTP/1.1\r\nHost: 127");
  EXPECT_EQ(statusOf(get("/")), 200) << "one slow browser keeps the others waiting";
  EXPECT_TRUE(slow.isClosed());
  const auto time = std::chrono::steady_clock::now() - start;
  EXPECT_GT(time, std::chrono::seconds(4));
  EXPECT_LT(time, std::chrono::seconds(8));
}

TEST_F(ServerConnection, IsKeptForFurtherRequests) {
  const Connection connection(port);
  for (int round = 0; round < 3; ++round) {
    connection.send(request());
    const std::string header = connection.receiveUntil("\r\n\r\n");
    EXPECT_EQ(statusOf(header), 200);
    const std::size_t length = std::stoul(fieldOf(header, "Content-Length"));
    EXPECT_EQ(connection.receive(length).size(), length);
  }
}

TEST_F(ServerConnection, AnswersRequestsThatComeAtOnceInOrder) {
  const Connection connection(port);
  connection.send(filled("GET /missing HTTP/1.1\r\nHost: {HOST}\r\nCookie: {COOKIE}\r\n\r\n") +
                  filled("HEAD / HTTP/1.1\r\nHost: {HOST}\r\nCookie: {COOKIE}\r\n"
                         "Connection: close\r\n\r\n"));
  const std::string answers = connection.receiveAll();
  EXPECT_EQ(statusOf(answers), 404);
  const std::size_t second = answers.find("HTTP/1.1", 1);
  ASSERT_NE(second, std::string::npos);
  EXPECT_EQ(statusOf(answers.substr(second)), 200);
  EXPECT_TRUE(answers.ends_with("\r\n\r\n")) << "HEAD has no body";
}

TEST_F(ServerConnection, GetsNoSecondAnswerAfterARefusedBody) {
  const Connection connection(port);
  connection.send(filled("POST / HTTP/1.1\r\nHost: {HOST}\r\nCookie: {COOKIE}\r\n"
                         "Content-Length: 30\r\n\r\n") +
                  request());
  connection.finish();
  EXPECT_EQ(connection.receiveAll(), "");
}

TEST_F(ServerConnection, TakesAHeaderThatComesByteByByte) {
  const Connection connection(port);
  for (const char byte : request()) connection.send({&byte, 1});
  EXPECT_EQ(statusOf(connection.receiveUntil("\r\n\r\n")), 200);
}

TEST_F(ServerConnection, MayGoAwayAtAnyPoint) {
  for (std::size_t length = 0; length <= request().size(); length += 7) {
    Connection(port).send(request().substr(0, length));
  }
}

TEST_F(ServerConnection, RandomBytesHarmNothing) {
  std::mt19937 random(20240229);
  for (int round = 0; round < 100; ++round) {
    std::string bytes(random() % 2000, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    const Connection connection(port);
    connection.send(bytes);
    connection.finish();
    EXPECT_EQ(connection.receiveAll(), "");
  }
}

}  // namespace
}  // namespace program_tests
