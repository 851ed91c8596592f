#include "tests/support/program/SubCommands.h"

#include <csignal>
#include <fstream>
#include <iterator>

namespace program_tests {

SubCommands::SubCommands() {
  Program page(startAt({}));
  page.firstLine();
  page.signal(SIGTERM);
  page.end();
}

Start SubCommands::startAt(std::vector<std::string> arguments) const {
  arguments.insert(arguments.begin(), {"--root", phone.string()});
  return {std::move(arguments)};
}

std::string SubCommands::said(std::vector<std::string> arguments) const {
  const End end = at(std::move(arguments));
  EXPECT_EQ(end.exitCode, 0);
  EXPECT_EQ(end.err, "");
  return end.out;
}

nlohmann::json SubCommands::saidJson(std::vector<std::string> arguments) const {
  return nlohmann::json::parse(said(std::move(arguments)));
}

void SubCommands::expectRefused(std::vector<std::string> arguments, int code,
                                const std::string& words) const {
  const End end = at(std::move(arguments));
  EXPECT_EQ(end.exitCode, code) << end.err;
  EXPECT_EQ(end.out, "");
  EXPECT_TRUE(end.err.starts_with("quillmere-settings: ")) << end.err;
  EXPECT_NE(end.err.find(words), std::string::npos) << end.err;
}

std::optional<std::string> SubCommands::preferences() const { return contents(file); }

void SubCommands::writePreferences(const std::string& bytes) const {
  std::ofstream(file, std::ios::binary) << bytes;
}

std::optional<plist::Value> SubCommands::stored(const char* key) const {
  const auto bytes = preferences();
  if (!bytes) return std::nullopt;
  const plist::Document document = plist::read(*bytes);
  const plist::Value* found = document.root.dictionary()->find(key);
  return found ? std::optional(*found) : std::nullopt;
}

std::string SubCommands::noting() const {
  return "echo \"${1-run}\" >> '" + (folder.path / "noted").string() + "'";
}

std::string SubCommands::noted() const { return contents(folder.path / "noted").value_or(""); }

std::optional<std::string> contents(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  if (!stream) return std::nullopt;
  return std::string(std::istreambuf_iterator(stream), {});
}

}  // namespace program_tests
