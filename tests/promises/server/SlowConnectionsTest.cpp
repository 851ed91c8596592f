#include <gtest/gtest.h>
#include <thread>

#include "tests/promises/server/Served.h"
#include "tests/promises/server/SlowCrowd.h"
#include "tests/promises/server/Times.h"
#include "tests/support/Figures.h"

namespace promises {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using program_tests::Final;
using program_tests::frame;

class SlowConnections : public Served {
 protected:
  /// Without the cookie, which only the user's browser has.
  std::vector<SlowCrowd::Kind> kinds() const {
    const std::string hostField = filled("Host: {HOST}\r\n");
    std::string requests;
    for (int each = 0; each < 1000; ++each) requests += "GET / HTTP/1.1\r\n" + hostField + "\r\n";
    return {
        {"", ""},
        {"", "GET / HTTP/1.1\r\n" + hostField},
        {"GET / HTTP/1.1\r\n" + hostField, ""},
        {"GET /socket HTTP/1.1\r\n" + hostField + "Upgrade: websocket\r\nSec-WebSocket-Key: dGhl",
         "x"},
        {"GET / HTTP/1.1\r\n" + hostField + "\r\n", ""},
        {requests, ""},
    };
  }

  /// What a user does in that time: changes, and now and then opens the page again.
  void work(Clock::duration time) {
    const auto end = Clock::now() + time;
    for (int round = 0; Clock::now() < end && !HasFailure(); ++round) {
      change(1 + round % 200);
      if (round % 10 == 0) openAgain();
      std::this_thread::sleep_for(10ms);
    }
  }

  void change(int value) {
    const auto start = Clock::now();
    user.send(frame(Opcode::Text, slide(sizeRow, value)));
    const std::string answer = user.receive().payload;
    changes.addSince(start);
    EXPECT_NE(answer.find(shownValue(value)), std::string::npos) << answer;
  }

  void openAgain() {
    const auto start = Clock::now();
    EXPECT_EQ(program_tests::statusOf(get("/")), 200);
    page();
    openings.addSince(start);
  }

  /// Whether a page that sends this is closed for it, or dropped. Until then it is told of what the
  /// user changes.
  bool isRefused(const std::string& huge) const {
    const WebSocket socket = page();
    socket.send(huge);
    WebSocket::Frame answer = socket.receive();
    while (answer.payload.starts_with(R"({"kind":"update")")) answer = socket.receive();
    const bool saysSo = answer.payload.starts_with("\x03\xf1");  // 1009: too big.
    return answer.opcode == Opcode::Close && (saysSo || answer.payload.empty());
  }

  const WebSocket user = clockPage();
  const Use before = use();
  Times changes;
  Times openings;
};

/// What a page sends that is over 64 KiB, announced or sent in full.
const std::string hugeMessages[] = {
    "\x81\xff\x00\x00\x01\x00\x00\x00\x00\x00mask{"s,
    "\x82\xff\x7f\xff\xff\xff\xff\xff\xff\xffmask{"s,
    "\x81\xff\x00\x00\x00\x00\x00\x01\x00\x01mask"s,
    frame(Opcode::Text, std::string(64 * 1024 + 1, ' ')),
    frame(Opcode::Text, std::string(60'000, ' '), Final::No) +
        frame(Opcode::More, std::string(60'000, ' '), Final::No),
};

TEST_F(SlowConnections, AndHugeMessagesDoNotKeepAUserWaiting) {
  std::size_t refused = 0;
  {
    const SlowCrowd crowd(port, kinds(), 500);
    std::jthread hostile([&] {
      for (std::size_t each = 0; each < 1000; ++each) {
        refused += isRefused(hugeMessages[each % std::size(hugeMessages)]);
      }
    });
    work(support::inForm(8s, 120s));
    hostile.join();
    EXPECT_GE(crowd.come(), 500);
  }
  EXPECT_EQ(refused, 1000);
  if (support::isLong()) {
    EXPECT_LT(changes.p99(), 50);
  }
  EXPECT_EQ(descriptorsDownTo(before.descriptors), before.descriptors);
  const std::string what = "500 slow connections and 1,000 huge messages: ";
  support::note(what + "a user's changes", changes.text(), "p99 under 50 ms");
  support::note(what + "the page opened anew", openings.text(), "each time");
  support::note(what + "refused, and left behind",
                support::grouped(refused) + " refused, " + growth(before, use()),
                "all refused, no descriptor more");
}

}  // namespace
}  // namespace promises
