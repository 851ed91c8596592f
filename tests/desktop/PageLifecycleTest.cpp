#include <gtest/gtest.h>

#include "desktop/Exception.h"
#include "desktop/UIKit/NavigationController.h"
#include "platform/UIKit/UIAlertController.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using platform::Animated;
using Calls = std::vector<std::string>;

/// A page that notes what it is told, with the height of the stack at that time.
class ToldPage : public platform::UIViewController {
 public:
  ToldPage(std::string itsName, desktop::NavigationController& stack, Calls& calls)
      : name_(std::move(itsName)), stack_(stack), calls_(calls) {}

  void viewDidLoad() override { note("viewDidLoad"); }
  void viewWillAppear(Animated) override {
    note("viewWillAppear");
    if (raises) throw desktop::rangeException("none there");
  }
  void viewDidAppear(Animated) override { note("viewDidAppear"); }

  using UIViewController::dismissViewController;
  using UIViewController::navigationController;
  using UIViewController::presentViewController;
  using UIViewController::view;

  bool raises = false;

 private:
  void note(const char* call) {
    calls_.push_back(name_ + ' ' + call + ' ' + std::to_string(stack_.pages().size()));
  }

  const std::string name_;
  desktop::NavigationController& stack_;
  Calls& calls_;
};

class PageLifecycleTest : public PhoneTest {
 protected:
  std::shared_ptr<ToldPage> page(const char* name) {
    return std::make_shared<ToldPage>(name, navigation, calls);
  }
  std::shared_ptr<ToldPage> push(const char* name) {
    auto pushed = page(name);
    navigation.push(pushed);
    return pushed;
  }
  static platform::UIAlertController alert() {
    return platform::UIAlertController::alertControllerWithTitle(
        "Title", "Message", platform::UIAlertControllerStyle::Alert);
  }

  desktop::NavigationController navigation;
  Calls calls;
};

TEST_F(PageLifecycleTest, APageIsLoadedThenDrawnThenOnTop) {
  push("A");
  EXPECT_EQ(calls, (Calls{"A viewDidLoad 0", "A viewWillAppear 0", "A viewDidAppear 1"}));
}

TEST_F(PageLifecycleTest, APageThatComesBackIsNotLoadedAgain) {
  push("A");
  push("B");
  calls.clear();
  navigation.pop();
  EXPECT_EQ(calls, (Calls{"A viewWillAppear 2", "A viewDidAppear 1"}));
}

TEST_F(PageLifecycleTest, AViewThatWasAskedForBeforeIsNotLoadedAgain) {
  const auto early = page("A");
  const platform::UIView view = early->view();
  EXPECT_EQ(calls, Calls{"A viewDidLoad 0"});
  EXPECT_EQ(view.bounds().size.width, 390);
  EXPECT_EQ(view.bounds().size.height, 844);
  navigation.push(early);
  EXPECT_EQ(calls, (Calls{"A viewDidLoad 0", "A viewWillAppear 0", "A viewDidAppear 1"}));
  EXPECT_EQ(early->view(), view);
}

TEST_F(PageLifecycleTest, TheFirstPageStays) {
  push("A");
  calls.clear();
  navigation.pop();
  EXPECT_EQ(calls, Calls{});
  EXPECT_EQ(navigation.pages().size(), 1U);
}

TEST_F(PageLifecycleTest, APageThatIsPoppedEnds) {
  push("A");
  const std::weak_ptr<ToldPage> popped = push("B");
  navigation.pop();
  EXPECT_TRUE(popped.expired());
}

TEST_F(PageLifecycleTest, APageThatRaisesIsNotPushed) {
  push("A");
  const auto raising = page("B");
  raising->raises = true;
  EXPECT_THROW(navigation.push(raising), desktop::Exception);
  EXPECT_EQ(navigation.pages().size(), 1U);
  EXPECT_EQ(calls.back(), "B viewWillAppear 1");
}

TEST_F(PageLifecycleTest, APageStaysOnOneThatRaises) {
  const auto raising = push("A");
  const unsigned number = (push("B"), navigation.top().number);
  raising->raises = true;
  EXPECT_THROW(navigation.pop(), desktop::Exception);
  EXPECT_EQ(navigation.pages().size(), 2U);
  EXPECT_EQ(navigation.top().number, number);
}

TEST_F(PageLifecycleTest, ABundlesPagePushesAnother) {
  const auto first = push("A");
  first->navigationController().pushViewController(page("B"), Animated::Yes);
  EXPECT_EQ(navigation.pages().size(), 2U);
  EXPECT_THROW(first->navigationController().pushViewController(nullptr, Animated::Yes),
               desktop::Exception);
  EXPECT_EQ(navigation.pages().size(), 2U);
}

TEST_F(PageLifecycleTest, APageOnNoStackPushesAndPresentsNothing) {
  const auto loose = page("A");
  EXPECT_FALSE(loose->navigationController());
  loose->navigationController().pushViewController(page("B"), Animated::Yes);
  loose->presentViewController(alert(), Animated::Yes);
  loose->dismissViewController(Animated::Yes);
  EXPECT_EQ(navigation.pages().size(), 0U);
  EXPECT_FALSE(navigation.presented());
}

TEST_F(PageLifecycleTest, OneScreenLiesOverThePagesAtATime) {
  const auto shown = push("A");
  const auto first = alert();
  shown->presentViewController(first, Animated::Yes);
  const unsigned number = navigation.presentation();
  shown->presentViewController(alert(), Animated::Yes);
  EXPECT_EQ(navigation.presented(), first);
  EXPECT_EQ(navigation.presentation(), number);
  EXPECT_EQ(reports,
            std::vector<std::string>{"<UIAlertController> is not shown: <UIAlertController> is in "
                                     "its place"});
}

TEST_F(PageLifecycleTest, AfterOneScreenAnotherIsShownUnderANumberOfItsOwn) {
  const auto shown = push("A");
  shown->presentViewController(alert(), Animated::Yes);
  const unsigned number = navigation.presentation();
  shown->dismissViewController(Animated::Yes);
  EXPECT_FALSE(navigation.presented());
  const auto second = alert();
  shown->navigationController().presentViewController(second, Animated::Yes);
  EXPECT_EQ(navigation.presented(), second);
  EXPECT_NE(navigation.presentation(), number);
  EXPECT_EQ(reports, std::vector<std::string>{});
}

TEST_F(PageLifecycleTest, NothingIsShownForNone) {
  const auto shown = push("A");
  shown->presentViewController(platform::Object(), Animated::Yes);
  shown->navigationController().presentViewController(platform::Object(), Animated::Yes);
  EXPECT_FALSE(navigation.presented());
  EXPECT_EQ(reports, std::vector<std::string>{});
}

}  // namespace
}  // namespace desktop_tests
