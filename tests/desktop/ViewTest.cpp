#include <gtest/gtest.h>
#include <stdexcept>

#include "desktop/UIKit/ViewBody.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using namespace platform;
using std::chrono::milliseconds;

class ViewTest : public PhoneTest {
 protected:
  ViewTest() {
    phone->mainQueue.now = [this] { return time; };
  }
  void pass(milliseconds duration) {
    time += duration;
    phone->mainQueue.run();
  }
  /// Alpha, and the time that it takes to get there in seconds.
  static std::pair<double, double> alphaOf(const UIView& view) {
    const desktop::ViewBody& body = *desktop::viewOf(view);
    return {body.alpha, body.fade};
  }

  desktop::MainQueue::Clock::time_point time{};
  UIView view = UIView::init();
  UIView other = UIView::init();
};

/// A view that says when it ends.
class FleetingBody : public desktop::ViewBody {
 public:
  explicit FleetingBody(int& count) : count_(count) { ++count_; }
  ~FleetingBody() override { --count_; }

 private:
  int& count_;
};

TEST_F(ViewTest, FadesWhatIsSetInsideOfTheBlockOnly) {
  view.setAlpha(0.5);
  EXPECT_EQ(alphaOf(view), std::pair(0.5, 0.0));
  UIView::animateWithDuration(0.2, [this] { view.setAlpha(0); });
  other.setAlpha(0);
  EXPECT_EQ(alphaOf(view), std::pair(0.0, 0.2));
  EXPECT_EQ(alphaOf(other), std::pair(0.0, 0.0));
  view.setAlpha(1);
  EXPECT_EQ(alphaOf(view), std::pair(1.0, 0.0));
}

TEST_F(ViewTest, ABlockInABlockHasItsOwnDuration) {
  UIView last = UIView::init();
  UIView::animateWithDuration(0.5, [&] {
    view.setAlpha(0);
    UIView::animateWithDuration(0.2, [&] { other.setAlpha(0); });
    last.setAlpha(0);
  });
  EXPECT_EQ(alphaOf(view).second, 0.5);
  EXPECT_EQ(alphaOf(other).second, 0.2);
  EXPECT_EQ(alphaOf(last).second, 0.5);
}

TEST_F(ViewTest, ABlockThatRaisesLeavesNoDurationBehind) {
  const auto raise = [] { throw std::runtime_error("raised"); };
  EXPECT_THROW(UIView::animateWithDuration(0.5, raise), std::runtime_error);
  view.setAlpha(0);
  EXPECT_EQ(alphaOf(view).second, 0.0);
}

TEST_F(ViewTest, TheCompletionRunsOnceTheMovementIsOver) {
  std::vector<bool> finished;
  UIView::animateWithDuration(
      1, 0.5, UIViewAnimationOptions::CurveEaseOut, [this] { view.setAlpha(0); },
      [&](bool there) { finished.push_back(there); });
  EXPECT_EQ(alphaOf(view), std::pair(0.0, 1.0));
  pass(milliseconds(1499));
  EXPECT_EQ(finished, std::vector<bool>{});
  pass(milliseconds(1));
  EXPECT_EQ(finished, std::vector<bool>{true});
  pass(milliseconds(5000));
  EXPECT_EQ(finished.size(), 1U);
}

TEST_F(ViewTest, WithoutACompletionNothingIsLeftToDo) {
  UIView::animateWithDuration(1, [this] { view.setAlpha(0); });
  UIView::animateWithDuration(1, 0, UIViewAnimationOptions::CurveEaseInOut,
                              [this] { view.setAlpha(1); }, {});
  EXPECT_EQ(alphaOf(view), std::pair(1.0, 1.0));
  EXPECT_EQ(phone->mainQueue.due(), std::nullopt);
}

TEST_F(ViewTest, HoldsItsViewsWithTheOneAddedLastOnTop) {
  UIView holder = UIView::init();
  holder.addSubview(view);
  holder.addSubview(other);
  holder.addSubview(UIView());
  EXPECT_EQ(desktop::viewOf(holder)->subviews, (std::vector{view, other}));
  holder.addSubview(view);
  EXPECT_EQ(desktop::viewOf(holder)->subviews, (std::vector{other, view}));
}

TEST_F(ViewTest, ConstraintsAreNotedInTheirOrderAndThoseOfNoneLeftOut) {
  const auto top = view.topAnchor().constraintEqualToAnchor(other.topAnchor());
  const auto end = view.trailingAnchor().constraintEqualToAnchor(other.trailingAnchor());
  const auto none = view.topAnchor().constraintEqualToAnchor(UIView().topAnchor());
  EXPECT_FALSE(none);
  EXPECT_FALSE(UIView().leadingAnchor().constraintEqualToAnchor(view.leadingAnchor()));
  phone->journal.start();
  NSLayoutConstraint::activateConstraints({top, none, end});
  NSLayoutConstraint::activateConstraints({none});
  EXPECT_EQ(
      phone->journal.lines(),
      (std::vector<std::string>{"NSLayoutConstraint activateConstraints:UIView.top = UIView.top, "
                                "UIView.trailing = UIView.trailing",
                                "NSLayoutConstraint activateConstraints:"}));
}

TEST_F(ViewTest, ConstraintsKeepNoViewAlive) {
  int alive = 0;
  {
    UIView holder = desktop::make<UIView, FleetingBody>(alive);
    const UIView held = desktop::make<UIView, FleetingBody>(alive);
    holder.addSubview(held);
    NSLayoutConstraint::activateConstraints(
        {held.bottomAnchor().constraintEqualToAnchor(holder.bottomAnchor())});
    EXPECT_EQ(alive, 2);
  }
  EXPECT_EQ(alive, 0);
}

}  // namespace
}  // namespace desktop_tests
