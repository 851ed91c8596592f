#include "tests/promises/server/Served.h"

#include <chrono>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <sstream>
#include <thread>

#include "plist/Document.h"
#include "tests/support/Figures.h"

namespace promises {

namespace fs = std::filesystem;

namespace {

WebSocket openPage(const program_tests::Pass& pass) {
  WebSocket socket(pass);
  EXPECT_EQ(socket.status(), 101);
  EXPECT_EQ(socket.message()["kind"], "screen");
  return socket;
}

}  // namespace

WebSocket openClockPage(const program_tests::Pass& pass) {
  WebSocket socket = openPage(pass);
  socket.touch(openClock);
  EXPECT_TRUE(socket.message()["nodes"].contains(sizeRow));
  return socket;
}

std::optional<double> numberIn(const fs::path& preferences, const char* key) {
  std::ifstream stream(preferences, std::ios::binary);
  if (!stream) return std::nullopt;
  const plist::Document document = plist::read({std::istreambuf_iterator<char>(stream), {}});
  const plist::Value* found = document.root.dictionary()->find(key);
  return found ? found->real() : std::nullopt;
}

WebSocket Served::page() const { return openPage(pass); }

Use Served::use() const {
  const fs::path process = "/proc/" + std::to_string(program.process());
  Use use{};
  std::ifstream status(process / "status");
  for (std::string word; status >> word;) {
    if (word == "VmRSS:") status >> use.memory;
  }
  const fs::directory_iterator open(process / "fd");
  use.descriptors = static_cast<std::size_t>(std::distance(begin(open), end(open)));
  return use;
}

std::size_t Served::descriptorsDownTo(std::size_t count) const {
  const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (use().descriptors > count && std::chrono::steady_clock::now() < until) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return use().descriptors;
}

std::string slide(const std::string& row, int value) {
  return R"({"kind":"slide","id":")" + row + R"(","value":)" + std::to_string(value) + "}";
}

std::string shownValue(int value) { return "\"value\":" + std::to_string(value) + ".0"; }

double grownPercent(const Use& before, const Use& after) {
  const auto memory = static_cast<double>(before.memory);
  return 100 * (static_cast<double>(after.memory) - memory) / memory;
}

std::string growth(const Use& before, const Use& after) {
  std::ostringstream text;
  text << support::grouped(before.memory) << " KiB, grown by " << std::fixed << std::setprecision(1)
       << grownPercent(before, after) << " %, " << after.descriptors << " descriptors";
  if (after.descriptors != before.descriptors) text << " of " << before.descriptors;
  return text.str();
}

}  // namespace promises
