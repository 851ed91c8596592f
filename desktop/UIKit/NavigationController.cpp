#include "desktop/UIKit/NavigationController.h"

#include "desktop/Message.h"
#include "desktop/UIKit/ControllerState.h"
#include "platform/Preferences/PSListController.h"

namespace desktop {

using platform::Animated;
using platform::UIViewController;

namespace {

unsigned lastNumber = 0;

/// What the page shows now. What is kept beside the preferences is merged first, if it can be.
std::vector<Section> draw(UIViewController& controller) {
  Phone::current().preferences.settleAll();
  viewOfController(controller);
  controller.viewWillAppear(Animated::Yes);
  auto* list = dynamic_cast<platform::PSListController*>(&controller);
  return list ? drawList(list->specifiers()) : std::vector<Section>();
}

}  // namespace

void NavigationController::push(std::shared_ptr<UIViewController> controller) {
  stateOf(*controller).navigation = this;
  // Drawn before it is on the stack: a page that raises must not stay there, empty.
  std::vector<Section> sections = draw(*controller);
  pages_.push_back({++lastNumber, controller, std::move(sections)});
  controller->viewDidAppear(Animated::Yes);
}

void NavigationController::pop() {
  if (pages_.size() < 2) return;
  Page& below = pages_[pages_.size() - 2];
  below.sections = draw(*below.controller);
  pages_.pop_back();
  Phone::current().preferences.forgetAnswers();  // Whoever asked for them is gone.
  top().controller->viewDidAppear(Animated::Yes);
}

void NavigationController::redraw() { top().sections = draw(*top().controller); }

void NavigationController::present(const platform::Object& screen) {
  if (presented_) {
    return Phone::current().report(debugDescription(screen) + " is not shown: " +
                                   debugDescription(presented_) + " is in its place");
  }
  presented_ = screen;
  presentation_ = ++lastNumber;
}

}  // namespace desktop

namespace platform {

using desktop::NavigationBody;
using desktop::send;

void UINavigationController::pushViewController(std::shared_ptr<UIViewController> controller,
                                                Animated animated) {
  const std::string name = controller ? desktop::stateOf(*controller).className : "nil";
  send<NavigationBody>(
      *this, "pushViewController:animated:", {std::string_view(name), animated == Animated::Yes},
      [&](NavigationBody& self) {
        if (!controller) throw desktop::invalidArgument("the controller is nil");
        self.stack.push(std::move(controller));
      });
}

void UINavigationController::presentViewController(const Object& controller, Animated animated) {
  if (!controller) return;
  send<NavigationBody>(*this, "presentViewController:animated:completion:",
                       {controller, animated == Animated::Yes, "nil"},
                       [&](NavigationBody& self) { self.stack.present(controller); });
}

}  // namespace platform
