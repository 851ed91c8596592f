#include <chrono>
#include <gtest/gtest.h>
#include <random>

#include "tests/support/program/RunningProgram.h"

namespace program_tests {
namespace {

class ServerConnection : public RunningProgram {
 protected:
  /// A request for the first page that leaves the connection open.
  std::string request() const {
    return filled("GET {HOME}/ HTTP/1.1\r\nHost: {HOST}\r\nCookie: {COOKIE}\r\n\r\n");
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
  connection.send(
      filled("GET {HOME}/missing HTTP/1.1\r\nHost: {HOST}\r\nCookie: {COOKIE}\r\n\r\n") +
      filled("HEAD {HOME}/ HTTP/1.1\r\nHost: {HOST}\r\nCookie: {COOKIE}\r\n"
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
  connection.send(filled("POST {HOME}/ HTTP/1.1\r\nHost: {HOST}\r\nCookie: {COOKIE}\r\n"
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
