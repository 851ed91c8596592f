#include <gtest/gtest.h>

#include "desktop/UIKit/AlertBody.h"
#include "desktop/UIKit/ControllerState.h"
#include "desktop/UIKit/SwitchBody.h"
#include "desktop/UIKit/TableBody.h"
#include "platform/UIKit/UIAlertController.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using namespace platform;
using Strings = std::vector<std::string>;

/// A controller that notes which of its actions are called.
class Listener : public UIViewController {
 public:
  void touched() { called.push_back("touched"); }
  void changed() {
    called.push_back("changed");
    if (whenChanged) whenChanged();
  }
  void scrollViewDidScroll(const UIScrollView& view) { offset = view.contentOffset().y; }

  std::span<const Method> methods() const override {
    static constexpr Method table[] = {
        method<&Listener::touched>("touched"),
        method<&Listener::changed>("changed"),
        method<&Listener::scrollViewDidScroll>("scrollViewDidScroll:"),
    };
    return table;
  }

  Strings called;
  std::function<void()> whenChanged;
  double offset = 0;
};

class ControlsTest : public PhoneTest {
 protected:
  desktop::SwitchBody& body() { return *desktop::bodyAs<desktop::SwitchBody>(knob); }

  UISwitch knob = UISwitch::init();
  Listener listener;
};

TEST_F(ControlsTest, ASwitchReportsATouchOnlyWhenTheFingerIsLiftedOnIt) {
  knob.addTarget(listener, "touched", UIControlEvents::TouchUpInside);
  body().toggle(true, false);
  EXPECT_TRUE(knob.isOn());
  EXPECT_EQ(listener.called, Strings{});
  body().toggle(true, true);
  body().toggle(false, true);
  EXPECT_FALSE(knob.isOn());
  EXPECT_EQ(listener.called, (Strings{"touched", "touched"}));
}

TEST_F(ControlsTest, ASwitchReportsAChangeWhereverTheFingerIsLifted) {
  knob.addTarget(listener, "changed", UIControlEvents::ValueChanged);
  body().toggle(true, false);
  body().toggle(true, true);
  EXPECT_EQ(listener.called, Strings{"changed"});
}

TEST_F(ControlsTest, ASwitchThatTheControllerSetsReportsNothing) {
  knob.addTarget(listener, "changed", UIControlEvents::ValueChanged);
  knob.addTarget(listener, "touched", UIControlEvents::TouchUpInside);
  knob.setOn(true, Animated::Yes);
  EXPECT_TRUE(knob.isOn());
  EXPECT_EQ(listener.called, Strings{});
}

TEST_F(ControlsTest, EveryTargetIsToldInTheOrderOfAdding) {
  Listener second;
  knob.addTarget(listener, "changed", UIControlEvents::ValueChanged);
  knob.addTarget(second, "changed", UIControlEvents::ValueChanged);
  knob.addTarget(listener, "touched", UIControlEvents::TouchUpInside);
  second.whenChanged = [this] { EXPECT_EQ(listener.called, Strings{"changed"}); };
  body().toggle(true, true);
  EXPECT_EQ(second.called, Strings{"changed"});
  EXPECT_EQ(listener.called, (Strings{"changed", "touched"}));
}

TEST_F(ControlsTest, AnActionMayTakeTheSwitchAwayAndAddTargets) {
  knob.addTarget(listener, "changed", UIControlEvents::ValueChanged);
  knob.addTarget(listener, "touched", UIControlEvents::TouchUpInside);
  listener.whenChanged = [this] {
    for (int i = 0; i < 100; ++i) knob.addTarget(listener, "other", UIControlEvents::ValueChanged);
    knob = UISwitch();
  };
  body().toggle(true, true);
  EXPECT_EQ(listener.called, (Strings{"changed", "touched"}));
  EXPECT_EQ(reports, Strings{});
}

TEST_F(ControlsTest, AnActionThatNobodyAnswersIsReported) {
  desktop::stateOf(listener).className = "Listener";
  knob.addTarget(listener, "fly", UIControlEvents::TouchUpInside);
  body().toggle(true, true);
  EXPECT_EQ(reports, Strings{"Listener does not answer \"fly\""});
}

TEST_F(ControlsTest, ATableTellsAControllerThatListensHowFarItScrolled) {
  desktop::TableBody table;
  table.scroll(10);
  table.scrollDelegate = &listener;
  table.scroll(-20.5);
  EXPECT_EQ(listener.offset, -20.5);
  UIViewController deaf;
  table.scrollDelegate = &deaf;
  table.scroll(30);
  EXPECT_EQ(table.contentOffset.y, 30);
  EXPECT_EQ(listener.offset, -20.5);
  EXPECT_EQ(reports, Strings{});
}

TEST_F(ControlsTest, AnAlertHoldsItsAnswersInOrder) {
  auto alert = UIAlertController::alertControllerWithTitle("Title", "Message",
                                                           UIAlertControllerStyle::Alert);
  int heard = 0;
  alert.addAction(
      UIAlertAction::actionWithTitle("Do", UIAlertActionStyle::Destructive, [&] { ++heard; }));
  alert.addAction(UIAlertAction::actionWithTitle("Leave", UIAlertActionStyle::Cancel, {}));
  const auto& body = *desktop::bodyAs<desktop::AlertBody>(alert);
  EXPECT_EQ(body.title.UTF8String(), std::string("Title"));
  EXPECT_EQ(body.message.UTF8String(), std::string("Message"));
  ASSERT_EQ(body.actions.size(), 2U);
  const auto& first = *desktop::bodyAs<desktop::AlertActionBody>(body.actions[0]);
  const auto& second = *desktop::bodyAs<desktop::AlertActionBody>(body.actions[1]);
  EXPECT_EQ(first.title.UTF8String(), std::string("Do"));
  EXPECT_EQ(first.style, UIAlertActionStyle::Destructive);
  EXPECT_EQ(second.style, UIAlertActionStyle::Cancel);
  EXPECT_FALSE(second.handler);
  first.handler();
  EXPECT_EQ(heard, 1);
}

}  // namespace
}  // namespace desktop_tests
