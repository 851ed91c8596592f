#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "settings/Options.h"

namespace settings_tests {
namespace {

struct Outcome {
  settings::ParsedOptions parsed;
  std::string out;
  std::string err;
};

Outcome parse(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "quillmere-settings");
  std::vector<const char*> argv;
  for (const std::string& argument : arguments) argv.push_back(argument.c_str());
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const auto parsed = settings::parseOptions(static_cast<int>(argv.size()), argv.data());
  Outcome outcome{parsed, "", testing::internal::GetCapturedStderr()};
  outcome.out = testing::internal::GetCapturedStdout();
  return outcome;
}

TEST(OptionsTest, WithoutArgumentsAreTheDefaults) {
  const Outcome outcome = parse({});
  EXPECT_EQ(outcome.parsed.exitCode, std::nullopt);
  EXPECT_EQ(outcome.parsed.options.root, "");
  EXPECT_EQ(outcome.parsed.options.port, 0);
  EXPECT_TRUE(outcome.parsed.options.open);
}

TEST(OptionsTest, TakeEveryArgument) {
  const auto options = parse({"--root", "/a folder", "--port", "8080", "--no-open"}).parsed.options;
  EXPECT_EQ(options.root, "/a folder");
  EXPECT_EQ(options.port, 8080);
  EXPECT_FALSE(options.open);
}

TEST(OptionsTest, TakeValuesBehindAnEqualsSign) {
  const auto options = parse({"--root=/a", "--port=65535"}).parsed.options;
  EXPECT_EQ(options.root, "/a");
  EXPECT_EQ(options.port, 65535);
}

TEST(OptionsTest, HelpGoesToStandardOutputAndNamesEveryOption) {
  const Outcome outcome = parse({"--help"});
  EXPECT_EQ(outcome.parsed.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
  for (const char* option : {"--root", "--port", "--no-open", "--help"}) {
    EXPECT_NE(outcome.out.find(option), std::string::npos) << option;
  }
}

TEST(OptionsTest, HelpTellsAllAlsoWhereOtherWordsAreNames) {
  const std::string all = parse({"--help"}).out;
  const std::vector<std::vector<std::string>> asking = {
      {"--root", "get", "--help"}, {"--port=1", "-h"}, {"-h", "--mail-command", "list"}};
  for (const auto& words : asking) EXPECT_EQ(parse(words).out, all) << words[0];
}

TEST(OptionsTest, AMistakeIsNamedInWords) {
  const std::pair<std::vector<std::string>, const char*> mistakes[] = {
      {{"--port", "abc"}, "--port: takes 0 to 65535, and not \"abc\""},
      {{"--port=99999"}, "--port: takes 0 to 65535, and not \"99999\""},
      {{"--root", "a", "--root", "b"}, "--root is given twice"},
      {{"--prt", "80"}, "there is no option \"--prt\"; did you mean \"--port\"?"},
      {{"--rot=a\nb"}, "there is no option \"--rot\"; did you mean \"--root\"?"},
      {{"fo\no"}, "there is no sub-command \"fo\\no\"; there are list, get"},
  };
  for (const auto& [arguments, words] : mistakes) {
    EXPECT_TRUE(parse(arguments).err.starts_with(std::string("quillmere-settings: ") + words))
        << parse(arguments).err;
  }
}

TEST(OptionsTest, EveryMistakeIsOneLineOnStandardErrorAndExitCode2) {
  const std::vector<std::vector<std::string>> mistakes = {
      {"--port", "65536"},
      {"--port", "99999"},
      {"--port", "-1"},
      {"--port", "abc"},
      {"--port", "80x"},
      {"--port", "80.5"},
      {"--port", ""},
      {"--port", " "},
      {"--port"},
      {"--root"},
      {"--root", ""},
      {"--root="},
      {"--fly"},
      {"-x"},
      {"folder"},
      {"--no-open=maybe"},
      {"--port=-1"},
      {"--port=18446744073709551616"},
      {"--port", "1", "--port", "2"},
      {"--root", "a", "b"},
      {"--port", "4294967376"},
  };
  for (const auto& arguments : mistakes) {
    const Outcome outcome = parse(arguments);
    std::string text;
    for (const std::string& argument : arguments) text += argument + ' ';
    EXPECT_EQ(outcome.parsed.exitCode, 2) << text;
    EXPECT_EQ(outcome.out, "") << text;
    EXPECT_TRUE(outcome.err.starts_with("quillmere-settings: ")) << text << outcome.err;
    EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << text << outcome.err;
  }
}

}  // namespace
}  // namespace settings_tests
