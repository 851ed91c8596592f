#include <algorithm>
#include <csignal>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/program/Connection.h"
#include "tests/support/program/Program.h"

namespace program_tests {
namespace {

class CommandLine : public testing::Test {
 protected:
  std::vector<std::string> atRoot(std::vector<std::string> more = {}) const {
    more.insert(more.begin(), {"--root", folder.path.string()});
    return more;
  }

  const support::TemporaryFolder folder;
};

void expectOneLine(const std::string& text) {
  EXPECT_TRUE(text.starts_with("quillmere-settings: ")) << text;
  EXPECT_EQ(std::ranges::count(text, '\n'), 1) << text;
}

TEST_F(CommandLine, PrintsExactlyTheAddressAndEndsWellOnEitherSignal) {
  for (const int signal : {SIGINT, SIGTERM}) {
    Program program({atRoot()});
    program.firstLine();
    program.signal(signal);
    const End end = program.end();
    EXPECT_EQ(end.exitCode, 0) << end.err;
    EXPECT_THAT(end.out,
                testing::MatchesRegex("Quillmere Settings: http://127\\.0\\.0\\.1:[1-9][0-9]*/"
                                      "\\?token=[0-9a-f]{32}\n"));
    EXPECT_EQ(end.err, "");
  }
}

TEST_F(CommandLine, HelpGoesToStandardOutput) {
  const End end = run({{"--help"}});
  EXPECT_EQ(end.exitCode, 0);
  EXPECT_NE(end.out.find("--port"), std::string::npos);
  EXPECT_EQ(end.err, "");
}

TEST_F(CommandLine, MistakesAreOneLineAndExitCode2) {
  for (const std::vector<std::string>& arguments :
       std::initializer_list<std::vector<std::string>>{{"--fly"},
                                                       {"folder"},
                                                       {"--port", "99999"},
                                                       {"--port", "-1"},
                                                       {"--port", "abc"},
                                                       {"--port"},
                                                       {"--root"}}) {
    const End end = run({arguments});
    EXPECT_EQ(end.exitCode, 2) << arguments.back();
    EXPECT_EQ(end.out, "") << arguments.back();
    expectOneLine(end.err);
  }
}

TEST_F(CommandLine, APortThatIsTakenIsOneClearLineAndExitCode1) {
  Program first({atRoot()});
  const std::string port = std::to_string(first.port());
  const End second = run({atRoot({"--port", port})});
  EXPECT_EQ(second.exitCode, 1);
  EXPECT_EQ(second.out, "");
  expectOneLine(second.err);
  EXPECT_NE(second.err.find("port " + port), std::string::npos) << second.err;
  EXPECT_NE(second.err.find("in use"), std::string::npos) << second.err;
}

TEST_F(CommandLine, ListensOnThePortItIsTold) {
  std::uint16_t port = 0;
  {
    Program any({atRoot({"--port", "0"})});
    port = any.port();
    any.signal(SIGTERM);
    EXPECT_EQ(any.end().exitCode, 0);
  }
  Program told({atRoot({"--port", std::to_string(port)})});
  EXPECT_EQ(told.port(), port);
}

TEST_F(CommandLine, TwoProgramsThatStartAtOnceShareANewFolder) {
  for (int round = 0; round < 10; ++round) {
    const Start start{{"--root", (folder.path / std::to_string(round)).string()}};
    Program first(start);
    Program second(start);
    EXPECT_NE(first.port(), second.port());
    std::string said;
    for (Program* program : {&first, &second}) {
      program->signal(SIGTERM);
      const End end = program->end();
      EXPECT_EQ(end.exitCode, 0) << end.err;
      said += end.err;
    }
    EXPECT_EQ(said, "quillmere-settings: made a new phone in " + start.arguments[1] + "\n");
  }
}

/// A port that was free a moment ago.
std::string freePort(const std::vector<std::string>& atRoot) {
  Program program({atRoot});
  const std::string port = std::to_string(program.port());
  program.signal(SIGTERM);
  program.end();
  return port;
}

/// Whether somebody answers on that port within ten seconds.
bool answers(const std::string& port) {
  for (int attempt = 0; attempt < 100; ++attempt) {
    try {
      const Connection connection(static_cast<std::uint16_t>(std::stoi(port)));
      connection.send("GET / HTTP/1.0\r\n\r\n");
      return statusOf(connection.receiveAll()) == 403;
    } catch (const std::runtime_error&) {
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
  }
  return false;
}

class WithoutReader : public CommandLine, public testing::WithParamInterface<Start::Output> {};

TEST_P(WithoutReader, TheProgramServesAllTheSame) {
  const std::string port = freePort(atRoot());
  Start start{atRoot({"--port", port})};
  start.output = GetParam();
  Program program(start);
  EXPECT_TRUE(answers(port));
  program.signal(SIGINT);
  const End end = program.end();
  EXPECT_EQ(end.exitCode, 0) << end.err;
  EXPECT_EQ(end.err, "");
}

TEST_F(CommandLine, WhatIsPrintedNeverGoesIntoAFileThatTookAClosedStreamsNumber) {
  const std::string port = freePort(atRoot());
  Start start{atRoot({"--port", port})};
  start.output = Start::Output::Closed;
  const Program program(start);
  EXPECT_TRUE(answers(port));
  EXPECT_EQ(program.openFile(1), "/dev/null");
}

INSTANTIATE_TEST_SUITE_P(CommandLine, WithoutReader,
                         testing::Values(Start::Output::Closed, Start::Output::Broken),
                         [](const auto& test) {
                           return test.param == Start::Output::Closed ? "ClosedOutput"
                                                                      : "BrokenPipe";
                         });

}  // namespace
}  // namespace program_tests
