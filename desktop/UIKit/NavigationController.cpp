#include "desktop/UIKit/NavigationController.h"

#include "desktop/Phone.h"
#include "desktop/UIKit/ControllerState.h"
#include "platform/Preferences/PSListController.h"

namespace desktop {

namespace {

/// What the page shows now. What is kept beside the preferences is merged first, if it can be.
std::vector<Section> draw(platform::UIViewController& controller) {
  Phone::current().preferences.settleAll();
  auto* list = dynamic_cast<platform::PSListController*>(&controller);
  return list ? drawList(list->specifiers()) : std::vector<Section>();
}

}  // namespace

void NavigationController::push(std::unique_ptr<platform::UIViewController> controller) {
  stateOf(*controller).navigation = this;
  // Drawn before it is on the stack: a page that raises must not stay there, empty.
  std::vector<Section> sections = draw(*controller);
  pages_.push_back({++lastNumber_, std::move(controller), std::move(sections)});
}

void NavigationController::pop() {
  if (pages_.size() < 2) return;
  Page& below = pages_[pages_.size() - 2];
  below.sections = draw(*below.controller);
  pages_.pop_back();
}

}  // namespace desktop
