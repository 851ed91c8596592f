#include <csignal>
#include <gtest/gtest.h>
#include <random>
#include <thread>

#include "tests/promises/server/Served.h"
#include "tests/support/Figures.h"

namespace promises {
namespace {

using namespace std::chrono_literals;
using program_tests::Program;

/// Another program serves the same folder, and commands change it as well.
class TwoWriters : public Served {
 protected:
  std::optional<double> stored(const char* key) const { return numberIn(preferences(), key); }

  /// Slides a row again and again: what is acknowledged is in the file, and what is refused is not.
  /// Nobody else changes that key.
  void slideAndLook(const WebSocket& page, const char* row, const char* key, std::size_t times) {
    double last = -1;
    for (std::size_t round = 0; round < times;) {
      const int value = 1 + static_cast<int>(round % 90);
      page.send(frame(Opcode::Text, slide(row, value)));
      const std::string answer = page.receive().payload;
      const bool isRefused = answer.find("another program is busy") != std::string::npos;
      if (!isRefused) {
        ASSERT_NE(answer.find(shownValue(value)), std::string::npos) << answer;
        last = value;
      }
      ASSERT_EQ(stored(key).value_or(-1), last) << key << " is lost in round " << round;
      if (isRefused) {
        ++refused;
      } else {
        ++round;
      }
    }
  }

  /// Lets the command line set another key, until both are done.
  void command(const std::stop_token& stop) {
    for (int value = 1; !stop.stop_requested(); value = value % 90 + 1) {
      const program_tests::End end = program_tests::run(
          {{"set", "colonHeight", std::to_string(value), "--root", folder.path.string()}});
      if (end.exitCode == 0) {
        ASSERT_EQ(stored("colonHeight"), value);
        ++commands;
      } else {
        ASSERT_NE(end.err.find("another program is busy"), std::string::npos) << end.err;
        ++refused;
      }
      std::this_thread::sleep_for(200ms);
    }
  }

  /// Stops either program at any moment, mostly for a moment, now and then for longer than the
  /// other one waits.
  void disturb(const std::stop_token& stop) {
    std::mt19937 random(20240229);
    const auto below = [&](unsigned limit) { return random() % limit; };
    while (!stop.stop_requested()) {
      const Program& either = below(2) == 0 ? program : other;
      std::this_thread::sleep_for(std::chrono::microseconds(below(20'000)));
      either.signal(SIGSTOP);
      const bool isLong = below(8) == 0;
      std::this_thread::sleep_for(isLong ? 1200ms : std::chrono::milliseconds(below(50)));
      either.signal(SIGCONT);
      ++stops;
    }
  }

  Program other{{arguments}};
  std::atomic<std::size_t> refused = 0;
  std::atomic<std::size_t> commands = 0;
  std::atomic<std::size_t> stops = 0;
};

TEST_F(TwoWriters, LoseNothingHoweverTheyAreStopped) {
  const WebSocket first = clockPage();
  const WebSocket second = openClockPage(program_tests::letIn(other));
  const std::size_t each = support::inForm<std::size_t>(1'000, 5'000);
  {
    const std::jthread disturbing([&](const std::stop_token& stop) { disturb(stop); });
    const std::jthread commanding([&](const std::stop_token& stop) { command(stop); });
    std::jthread meanwhile(
        [&] { slideAndLook(second, alignmentRow, "clockVerticalAlignment", each); });
    slideAndLook(first, sizeRow, "clockDigitSize", each);
  }
  const double last = 1 + static_cast<double>((each - 1) % 90);
  EXPECT_EQ(stored("clockDigitSize"), last);
  EXPECT_EQ(stored("clockVerticalAlignment"), last);
  support::note(support::grouped(2 * each) + " changes by two programs, " +
                    support::grouped(stops) + " times stopped, and " + support::grouped(commands) +
                    " by commands",
                (HasFailure() ? "some" : "0") + std::string(" lost, ") + support::grouped(refused) +
                    " refused and made again",
                "0 lost");
}

}  // namespace
}  // namespace promises
