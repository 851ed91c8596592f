#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

#include "tests/support/program/SubCommands.h"

namespace program_tests {
namespace {

using SubCommandLine = SubCommands;

TEST_F(SubCommandLine, TakesOptionsBeforeAndBehind) {
  const std::string root = phone.string();
  for (const std::vector<std::string>& arguments : std::initializer_list<std::vector<std::string>>{
           {"--root", root, "--json", "get", "clockEnabled"},
           {"get", "--root", root, "--json", "clockEnabled"},
           {"get", "clockEnabled", "--json", "--root", root},
           {"--ios-version", "12.4", "get", "clockEnabled", "--root=" + root}}) {
    const End end = run({arguments});
    EXPECT_EQ(end.exitCode, 0) << end.err;
    EXPECT_EQ(end.out, arguments[0] == "--ios-version" ? "on\n" : "true\n");
  }
}

TEST_F(SubCommandLine, HasHelpWithAnExampleForEachSubCommand) {
  for (const char* name : {"list", "get", "set", "reset", "lotties list", "lotties enable",
                           "lotties disable", "lotties move"}) {
    std::vector<std::string> words;
    std::istringstream stream(name);
    for (std::string word; stream >> word;) words.push_back(word);
    words.push_back("--help");
    const End end = run({words});
    EXPECT_EQ(end.exitCode, 0) << name;
    EXPECT_EQ(end.err, "") << name;
    EXPECT_NE(end.out.find("Usage: ./run " + std::string(name)), std::string::npos) << end.out;
    EXPECT_NE(end.out.find("Example: ./run " + std::string(name)), std::string::npos) << end.out;
  }
}

TEST_F(SubCommandLine, HelpTellsFlagsAndWherePlacesBegin) {
  EXPECT_NE(run({{"reset", "--help"}}).out.find("--yes"), std::string::npos);
  EXPECT_NE(run({{"set", "--help"}}).out.find("--respring"), std::string::npos);
  EXPECT_NE(run({{"lotties", "move", "--help"}}).out.find("1 is the first"), std::string::npos);
  const std::string all = run({{"--help"}}).out;
  for (const char* name : {"list", "get", "set", "reset", "lotties"}) {
    EXPECT_NE(all.find(std::string("\n  ") + name), std::string::npos) << all;
  }
}

TEST_F(SubCommandLine, RefusesWhatMakesNoSense) {
  const std::pair<std::vector<std::string>, const char*> mistakes[] = {
      {{"list", "--port", "0"}, "--port is for the page"},
      {{"--no-open", "list"}, "--no-open is for the page"},
      {{"list", "--yes"}, "--yes is not for list"},
      {{"lotties", "enable", "Rain", "--yes"}, "--yes is not for lotties enable"},
      {{"reset", "--yes", "--respring"}, "--respring is not for reset"},
      {{"--json"}, "--json is not for the page"},
      {{"get"}, "KEY"},
      {{"get", "clockEnabled", "colorMode"}, "colorMode"},
      {{"set", "clockEnabled"}, "VALUE"},
      {{"get", "clockEnabled", "colorMode"}, "\"colorMode\" is more than get takes"},
      {{"lotties"}, "lotties needs one of list, enable, disable, move behind it"},
      {{"lotties", "foo"}, "no sub-command \"lotties foo\"; there are list, enable, disable, move"},
      {{"lotties", "enabel"}, "no sub-command \"lotties enabel\"; did you mean \"enable\"?"},
      {{"lotties", "enable", "-dash"},
       "NAME is required; what begins with \"-\" stands behind --, "
       "as in -- -dash"},
      {{"lotties", "move", "Clock"}, "POSITION"},
      {{"list", "get", "clockEnabled"}, "get"},
      {{"lst"}, "there is no sub-command \"lst\"; did you mean \"list\"?"},
      {{"foo"}, "there is no sub-command \"foo\"; there are list, get, set, reset, lotties"},
      {{"list", "--jsn"}, "there is no option \"--jsn\"; did you mean \"--json\"?"},
  };
  for (const auto& [arguments, words] : mistakes) {
    expectRefused(arguments, 2, words);
    EXPECT_EQ(std::ranges::count(at(arguments).err, '\n'), 1);
  }
  EXPECT_EQ(preferences(), std::nullopt);
}

TEST_F(SubCommandLine, TakesANameThatBeginsWithADashBehindTwo) {
  expectRefused({"lotties", "enable", "--", "-dash"}, 2, "there is no animation \"-dash\"");
}

TEST_F(SubCommandLine, IsDoneAlsoWhenNobodyReads) {
  for (const Start::Output output : {Start::Output::Closed, Start::Output::Broken}) {
    for (const std::vector<std::string>& arguments :
         std::initializer_list<std::vector<std::string>>{
             {"list"}, {"set", "clockDigitSize", "80", "--json"}}) {
      Start start = startAt(arguments);
      start.output = output;
      const End end = run(start);
      EXPECT_EQ(end.exitCode, 0) << end.err;
      EXPECT_EQ(end.err, "");
    }
    EXPECT_EQ(stored("clockDigitSize"), plist::Value::real(80.0F));
  }
}

TEST_F(SubCommandLine, EndsWithCode1WhenThePhoneCannotBeSwitchedOn) {
  const End end = run({{"--root", (folder.path / "no/phone").string(), "list"}});
  EXPECT_EQ(end.exitCode, 1);
  EXPECT_EQ(end.out, "");
  EXPECT_TRUE(end.err.starts_with("quillmere-settings: ")) << end.err;
}

}  // namespace
}  // namespace program_tests
