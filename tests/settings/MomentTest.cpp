#include <gtest/gtest.h>

#include "settings/Moment.h"

namespace settings_tests {
namespace {

using nlohmann::json;
using settings::Moment;
using settings::Shown;
using settings::Tree;
using settings::Viewport;

/// A screen of one node, and how often it was drawn.
class MomentTest : public testing::Test {
 protected:
  const std::function<Tree(const Viewport&)> draw = [this](const Viewport& viewport) {
    ++drawn;
    return Tree{{"window", {{"first", viewport.first}, {"text", text}}}};
  };
  static json said(const settings::Message& message) { return json::parse(*message); }

  std::string text = "one";
  int drawn = 0;
  const Viewport top{};
  const Viewport below{"page1", 40, 40};
};

TEST_F(MomentTest, DrawsTheScreenOnceForAllThatHaveTheSameInView) {
  Moment moment(draw);
  EXPECT_EQ(drawn, 0);
  const Shown shown = moment.shown(top);
  EXPECT_EQ(moment.shown(Viewport{}), shown);
  EXPECT_EQ(drawn, 1);
  EXPECT_NE(*moment.shown(below), *shown);
  EXPECT_EQ(drawn, 2);
}

TEST_F(MomentTest, GivesANewPageTheWholeScreen) {
  Moment moment(draw);
  EXPECT_EQ(said(moment.change(nullptr, moment.shown(top))),
            settings::screenMessage(*moment.shown(top)));
}

TEST_F(MomentTest, SaysOnceWhatHasChangedForAllThatShowedTheSame) {
  Moment before(draw);
  const Shown shown = before.shown(top);
  text = "two";
  Moment after(draw);
  const settings::Message change = after.change(shown, after.shown(top));
  EXPECT_EQ(said(change)["nodes"]["window"]["text"], "two");
  EXPECT_EQ(after.change(shown, after.shown(top)), change);
}

TEST_F(MomentTest, TellsPagesApartThatShowedSomethingElse) {
  Moment before(draw);
  const Shown first = before.shown(top);
  text = "two";
  Moment between(draw);
  const Shown second = between.shown(top);
  Moment after(draw);
  EXPECT_NE(after.change(first, after.shown(top)), nullptr);
  EXPECT_EQ(after.change(second, after.shown(top)), nullptr) << "that is what it shows";
}

TEST_F(MomentTest, SendsNoBytesThatAreNoUtf8) {
  EXPECT_EQ(*settings::message(json{{"a", "\xff"}}), "{\"a\":\"\xef\xbf\xbd\"}");
}

}  // namespace
}  // namespace settings_tests
