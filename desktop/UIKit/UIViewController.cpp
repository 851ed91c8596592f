#include "platform/UIKit/UIViewController.h"

#include <algorithm>

#include "desktop/Foundation/Values.h"
#include "desktop/Message.h"
#include "desktop/UIKit/ControllerState.h"
#include "desktop/UIKit/NavigationController.h"
#include "desktop/UIKit/NavigationItemBody.h"
#include "desktop/UIKit/ViewBody.h"
#include "platform/Bundle.h"

namespace platform {

using desktop::sendClass;
using desktop::stateOf;

struct ControllerBackend {
  static desktop::ControllerState* state(const UIViewController& controller) {
    return static_cast<desktop::ControllerState*>(controller.backend_);
  }
  static UIView view(UIViewController& controller) { return controller.view(); }
};

UIViewController::UIViewController() : backend_(new desktop::ControllerState) {
  stateOf(*this).navigationItem = desktop::make<UINavigationItem, desktop::NavigationItemBody>();
}

UIViewController::~UIViewController() { delete ControllerBackend::state(*this); }

std::shared_ptr<UIViewController> UIViewController::make(const NSString& className) {
  auto controller = desktop::makeController(className.UTF8String());
  return controller && controller->init() ? controller : nullptr;
}

bool UIViewController::init() {
  const desktop::ControllerState& state = stateOf(*this);
  return sendClass(state.className, "init", {}, [&] { return !state.refusesInit; });
}

void UIViewController::viewDidLoad() {
  sendClass(stateOf(*this).className, "viewDidLoad", {}, [] {});
}

void UIViewController::viewWillAppear(Animated animated) {
  sendClass(stateOf(*this).className, "viewWillAppear:", {animated == Animated::Yes}, [] {});
}

void UIViewController::viewDidAppear(Animated animated) {
  sendClass(stateOf(*this).className, "viewDidAppear:", {animated == Animated::Yes}, [] {});
}

UIView UIViewController::view() {
  desktop::ControllerState& state = stateOf(*this);
  if (!state.view) {
    state.view = desktop::make<UIView, desktop::ViewBody>();
    desktop::viewOf(state.view)->frame.size = desktop::Phone::screenSize;
    viewDidLoad();
  }
  return state.view;
}

UINavigationItem UIViewController::navigationItem() const {
  const desktop::ControllerState& state = stateOf(*this);
  return state.refusesInit ? UINavigationItem() : state.navigationItem;
}

UINavigationController UIViewController::navigationController() const {
  desktop::NavigationController* stack = stateOf(*this).navigation;
  return stack ? desktop::make<UINavigationController, desktop::NavigationBody>(*stack)
               : UINavigationController();
}

void UIViewController::presentViewController(const Object& controller, Animated animated) {
  if (!controller) return;
  const desktop::ControllerState& state = stateOf(*this);
  sendClass(state.className, "presentViewController:animated:completion:",
            {controller, animated == Animated::Yes, "nil"}, [&] {
              if (state.navigation) state.navigation->present(controller);
            });
}

void UIViewController::dismissViewController(Animated animated) {
  const desktop::ControllerState& state = stateOf(*this);
  sendClass(state.className,
            "dismissViewControllerAnimated:completion:", {animated == Animated::Yes, "nil"}, [&] {
              if (state.navigation) state.navigation->dismiss();
            });
}

}  // namespace platform

namespace desktop {

using platform::UIViewController;

ControllerState& stateOf(const UIViewController& controller) {
  return *platform::ControllerBackend::state(controller);
}

std::string titleOf(const UIViewController& controller) {
  return textOf(bodyAs<NavigationItemBody>(stateOf(controller).navigationItem)->title);
}

void setTitle(const UIViewController& controller, const std::string& title) {
  bodyAs<NavigationItemBody>(stateOf(controller).navigationItem)->title = platform::NSString(title);
}

platform::UIView viewOfController(UIViewController& controller) {
  return platform::ControllerBackend::view(controller);
}

bool answers(const UIViewController& controller, std::string_view selector) {
  return std::ranges::any_of(controller.methods(), [&](const platform::Method& method) {
    return method.selector.name == selector;
  });
}

platform::Object perform(UIViewController& controller, std::string_view selector,
                         const platform::Object& first, const platform::Object& second) {
  for (const platform::Method& method : controller.methods()) {
    if (method.selector.name == selector) return method.invoke(controller, first, second);
  }
  Phone::current().report(stateOf(controller).className + " does not answer \"" +
                          std::string(selector) + "\"");
  return {};
}

std::shared_ptr<UIViewController> makeController(const std::string& className) {
  for (const platform::ControllerClass& known : platform::bundleClasses()) {
    if (className != known.name) continue;
    auto controller = known.make();
    stateOf(*controller).className = className;
    return controller;
  }
  return nullptr;
}

}  // namespace desktop
