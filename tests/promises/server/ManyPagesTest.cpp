#include <functional>
#include <gtest/gtest.h>
#include <list>
#include <poll.h>

#include "tests/promises/server/Inbox.h"
#include "tests/promises/server/Served.h"
#include "tests/promises/server/Times.h"
#include "tests/support/Figures.h"

namespace promises {
namespace {

using namespace std::chrono_literals;

/// One who changes a row again and again, and what every page is told of it.
struct Editor {
  const WebSocket& page;
  std::string row;
  struct Change {
    std::string touch;
    std::string shown;
  };
  std::function<Change(std::size_t round)> change;
  Clock::time_point next = Clock::now();
  std::vector<Clock::time_point> sent{};

  void touchWhenDue() {
    if (Clock::now() < next) return;
    next += 100ms;
    sent.push_back(Clock::now());
    page.send(frame(Opcode::Text, change(sent.size() - 1).touch));
  }
};

Editor::Change slideSize(std::size_t round) {
  const int value = 1 + static_cast<int>(round % 190);
  return {slide(sizeRow, value), shownValue(value)};
}

Editor::Change toggleLoop(std::size_t round) {
  const std::string on = round % 2 == 0 ? "false" : "true";
  return {R"({"kind":"toggle","id":")" + std::string(loopRow) + R"(","on":)" + on + "}",
          "\"on\":" + on};
}

/// One of the pages, and how much of each editor's work has reached it.
struct Listener {
  Inbox inbox;
  std::vector<std::size_t> heard;

  /// Each row's changes have to come whole and in order.
  void take(const std::vector<Editor>& editors, Times& times) {
    EXPECT_TRUE(inbox.take([&](std::string_view message) {
      for (std::size_t each = 0; each < editors.size(); ++each) {
        const Editor& editor = editors[each];
        if (message.find('"' + editor.row + '"') == std::string_view::npos) continue;
        const std::size_t round = heard[each]++;
        ASSERT_LT(round, editor.sent.size());
        times.addSince(editor.sent[round]);
        EXPECT_NE(message.find(editor.change(round).shown), std::string_view::npos) << message;
      }
    })) << "a page was dropped";
  }
};

class ManyPages : public Served {
 protected:
  static constexpr std::size_t count = 64;

  ManyPages() {
    for (const WebSocket& each : pages) {
      listeners.push_back({Inbox(each), {0, 0}});
      polled.push_back({each.connection().number(), POLLIN, 0});
    }
  }

  void TearDown() override {
    pages.clear();
    descriptorsDownTo(alone.descriptors);
    Served::TearDown();
  }

  /// All show the Clock page.
  std::list<WebSocket> open() const {
    std::list<WebSocket> opened;
    while (opened.size() < count) opened.push_back(page());
    opened.front().touch(openClock);
    for (const WebSocket& each : opened) EXPECT_TRUE(each.message()["nodes"].contains(sizeRow));
    return opened;
  }

  void takeWhatComes() {
    poll(polled.data(), polled.size(), 1);
    for (std::size_t each = 0; each < count; ++each) {
      if (polled[each].revents != 0) listeners[each].take(editors, times);
    }
  }

  void editFor(Clock::duration time) {
    for (const auto end = Clock::now() + time; Clock::now() < end && !HasFailure();) {
      for (Editor& editor : editors) editor.touchWhenDue();
      takeWhatComes();
    }
  }

  const Use alone = use();
  std::list<WebSocket> pages = open();
  std::vector<Editor> editors{{pages.front(), sizeRow, &slideSize},
                              {pages.back(), loopRow, &toggleLoop, Clock::now() + 50ms}};
  std::vector<Listener> listeners;
  std::vector<pollfd> polled;
  Times times;
};

TEST_F(ManyPages, AreAllToldOfEveryChangeAtOnce) {
  const auto time = support::inForm(5s, 600s);
  editFor(time / 5);
  const Use before = use();
  editFor(time - time / 5);
  const Use after = use();
  for (const auto end = Clock::now() + 1s; Clock::now() < end;) takeWhatComes();

  for (const Listener& listener : listeners) {
    EXPECT_EQ(listener.heard[0], editors[0].sent.size());
    EXPECT_EQ(listener.heard[1], editors[1].sent.size());
  }
  if (support::isLong()) {
    EXPECT_LT(times.p99(), 100);
  }
  EXPECT_LT(grownPercent(before, after), 5);
  const std::string what = "64 pages for " + std::to_string(time / 1s) + " s, two editing: ";
  support::note(what + "a change on every page", times.text(), "p99 under 100 ms");
  support::note(what + "memory", growth(before, after), "grows by under 5 %");
}

}  // namespace
}  // namespace promises
