#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "settings/Options.h"

namespace settings_tests {
namespace {

struct Outcome {
  settings::ParsedOptions parsed;
  std::string err;
};

Outcome parse(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "quillmere-settings");
  std::vector<const char*> argv;
  for (const std::string& argument : arguments) argv.push_back(argument.c_str());
  testing::internal::CaptureStderr();
  const auto parsed = settings::parseOptions(static_cast<int>(argv.size()), argv.data());
  return {parsed, testing::internal::GetCapturedStderr()};
}

TEST(SubCommandOptions, WithoutASubCommandShowThePage) {
  EXPECT_EQ(parse({"--root", "/a"}).parsed.options.subCommand, nullptr);
}

TEST(SubCommandOptions, NameTheSubCommandAndItsArgumentsInOrder) {
  const auto options = parse({"set", "clockDigitSize", "-20", "--json"}).parsed.options;
  ASSERT_NE(options.subCommand, nullptr);
  EXPECT_STREQ(options.subCommand->name, "set");
  EXPECT_EQ(options.request.arguments, (std::vector<std::string>{"clockDigitSize", "-20"}));
  EXPECT_TRUE(options.request.json);
  EXPECT_FALSE(options.request.yes);
  EXPECT_FALSE(options.request.respring);
}

TEST(SubCommandOptions, KnowSubCommandsOfTwoWords) {
  const auto options = parse({"lotties", "move", "list", "2", "--root", "/a"}).parsed.options;
  ASSERT_NE(options.subCommand, nullptr);
  EXPECT_STREQ(options.subCommand->name, "lotties move");
  EXPECT_EQ(options.request.arguments, (std::vector<std::string>{"list", "2"}));
  EXPECT_EQ(options.root, "/a");
}

TEST(SubCommandOptions, TakeEveryOptionOfThePhone) {
  const auto options =
      parse({"list", "--screen-scale", "2", "--ios-version", "14.3.1", "--ios-build", "18C66",
             "--product-type", "iPhone12,1", "--respring-command", "a", "--notify-command", "b",
             "--mail-command", "c d"})
          .parsed.options;
  EXPECT_EQ(options.screenScale, 2);
  EXPECT_EQ(options.iosVersion, "14.3.1");
  EXPECT_EQ(options.iosBuild, "18C66");
  EXPECT_EQ(options.productType, "iPhone12,1");
  EXPECT_EQ(options.respringCommand, "a");
  EXPECT_EQ(options.notifyCommand, "b");
  EXPECT_EQ(options.mailCommand, "c d");
}

TEST(SubCommandOptions, RefuseValuesThatMakeNoSense) {
  const std::vector<std::vector<std::string>> mistakes = {
      {"--screen-scale", "0"},   {"--screen-scale", "4"},
      {"--screen-scale", "2.5"}, {"--screen-scale", ""},
      {"--ios-version", ""},     {"--ios-version", "14."},
      {"--ios-version", "x"},    {"--ios-version", ".14"},
      {"--ios-version", "-14"},  {"--ios-version", "1.2.3.4"},
      {"--ios-build", ""},       {"--product-type", ""},
      {"--respring-command"},    {"--notify-command"},
      {"--mail-command"},        {"--root", ""},
  };
  for (std::vector<std::string> arguments : mistakes) {
    std::string text;
    for (const std::string& argument : arguments) text += argument + ' ';
    for (const bool listing : {false, true}) {
      if (listing) arguments.insert(arguments.begin(), "list");
      const Outcome outcome = parse(arguments);
      EXPECT_EQ(outcome.parsed.exitCode, 2) << text;
      EXPECT_TRUE(outcome.err.starts_with("quillmere-settings: ")) << text << outcome.err;
      EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << text << outcome.err;
    }
  }
}

}  // namespace
}  // namespace settings_tests
