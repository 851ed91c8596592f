#include <csignal>
#include <fstream>
#include <gtest/gtest.h>

#include "tests/promises/server/Served.h"
#include "tests/promises/server/SlowCrowd.h"
#include "tests/support/Figures.h"

namespace promises {
namespace {

using namespace std::chrono_literals;
using program_tests::End;
using program_tests::Program;
using Output = program_tests::Start::Output;

/// Another program on the same folder lacks what a program usually has.
class Scarcity : public Served {
 protected:
  static std::string slideTo(const WebSocket& page, int value) {
    page.send(frame(Opcode::Text, slide(sizeRow, value)));
    return page.receive().payload;
  }

  static bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
  }

  std::optional<double> stored() const { return numberIn(preferences(), "clockDigitSize"); }
};

TEST_F(Scarcity, OfDescriptorsIsToldAndOver) {
  Program cramped{{.arguments = arguments, .openFiles = 18}};
  const WebSocket page = openClockPage(program_tests::letIn(cramped));
  EXPECT_TRUE(contains(slideTo(page, 20), shownValue(20)));
  unsigned told = 0;
  {
    const SlowCrowd crowd(cramped.port(), {{"", ""}}, 64);
    for (int value = 21; value < 51; ++value) {
      const std::string answer = slideTo(page, value);
      const bool isTold = contains(answer, "banner") || contains(answer, R"("kind":"refused")");
      if (!isTold) {
        EXPECT_EQ(stored(), value) << answer;
      } else {
        ++told;
        page.touch({{"kind", "tap"}, {"id", "banner"}});
        page.receive();
      }
      std::this_thread::sleep_for(10ms);
    }
  }
  EXPECT_GT(told, 0U) << "nothing was scarce";
  int value = 60;  // The crowd's descriptors come free in a moment.
  const auto until = Clock::now() + 10s;
  while (slideTo(page, value), stored() != value && Clock::now() < until) ++value;
  EXPECT_EQ(stored(), value);
  cramped.signal(SIGTERM);
  const End ended = cramped.end();
  EXPECT_EQ(ended.exitCode, 0);
  EXPECT_FALSE(contains(ended.err, "other programs are not kept")) << ended.err;
  support::note("descriptors used up by others", std::to_string(told) + " of 30 changes told",
                "0 lost untold, it stays up");
}

class NoListener : public Scarcity, public testing::WithParamInterface<Output> {};

/// Every change makes the program complain, as the preferences cannot be read.
TEST_P(NoListener, OfComplaintsKeepsNobodyWaiting) {
  Program unheard{{.arguments = arguments, .errors = GetParam()}};
  std::ofstream(preferences()) << "no property list";
  const WebSocket page = openClockPage(program_tests::letIn(unheard));
  for (int round = 0; round < 1'000 && !HasFailure(); ++round) {
    const int value = 1 + round % 200;
    const std::string answer = slideTo(page, value);
    ASSERT_TRUE(contains(answer, R"("kind":"update")")) << "after " << round << ": " << answer;
  }
  unheard.signal(SIGTERM);
  EXPECT_EQ(unheard.end().exitCode, 0);
}

std::string nameOf(const testing::TestParamInfo<Output>& test) {
  constexpr const char* names[] = {"FullPipe", "Closed", "BrokenPipe"};
  return names[static_cast<int>(test.param)];
}

INSTANTIATE_TEST_SUITE_P(StandardError, NoListener,
                         testing::Values(Output::Closed, Output::Broken, Output::Read), &nameOf);

}  // namespace
}  // namespace promises
