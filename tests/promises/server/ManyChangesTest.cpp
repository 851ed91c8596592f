#include <gtest/gtest.h>

#include "tests/promises/server/Served.h"
#include "tests/support/Figures.h"

namespace promises {
namespace {

class ManyChanges : public Served {
 protected:
  /// Slides a row that many times, each time to another place, and looks at every answer. Some
  /// touches are on their way at once, fewer than the program lets answers wait.
  void slideTimes(std::size_t times) {
    constexpr std::size_t atOnce = 100;
    for (std::size_t done = 0; done < times && !HasFailure(); done += atOnce) {
      std::string touches;
      for (std::size_t each = 0; each < atOnce; ++each) {
        touches += frame(Opcode::Text, slide(sizeRow, value(done + each)));
      }
      editor.send(touches);
      for (std::size_t each = 0; each < atOnce; ++each) {
        const std::string answer = editor.receive().payload;
        ASSERT_NE(answer.find(shownValue(value(done + each))), std::string::npos) << answer;
      }
    }
  }

  static int value(std::size_t round) { return 1 + static_cast<int>(round % 200); }

  const WebSocket editor = clockPage();
};

TEST_F(ManyChanges, LeaveNothingBehindInTheProcess) {
  const std::size_t count = support::inForm<std::size_t>(5'000, 1'000'000);
  slideTimes(count / 10);
  const Use before = use();
  slideTimes(count - count / 10);
  const Use after = use();
  EXPECT_EQ(after.descriptors, before.descriptors);
  EXPECT_LT(grownPercent(before, after), 1);
  support::note(support::grouped(count) + " changes in one process", growth(before, after),
                "neither memory nor descriptors grow");
}

}  // namespace
}  // namespace promises
