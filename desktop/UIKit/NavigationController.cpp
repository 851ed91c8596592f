#include "desktop/UIKit/NavigationController.h"

#include "desktop/UIKit/ControllerState.h"
#include "platform/Preferences/PSListController.h"

namespace desktop {

void NavigationController::push(std::unique_ptr<platform::UIViewController> controller) {
  stateOf(*controller).navigation = this;
  pages_.push_back({++lastNumber_, std::move(controller), {}});
  draw(pages_.back());
}

void NavigationController::pop() {
  if (pages_.size() < 2) return;
  pages_.pop_back();
  draw(pages_.back());
}

void NavigationController::draw(Page& page) {
  if (auto* list = dynamic_cast<platform::PSListController*>(page.controller.get())) {
    page.sections = drawList(list->specifiers());
  }
}

}  // namespace desktop
