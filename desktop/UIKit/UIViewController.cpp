#include "platform/UIKit/UIViewController.h"

#include "desktop/Message.h"
#include "desktop/UIKit/ControllerState.h"
#include "platform/Bundle.h"

namespace platform {

struct ControllerBackend {
  static desktop::ControllerState* state(const UIViewController& controller) {
    return static_cast<desktop::ControllerState*>(controller.backend_);
  }
};

UIViewController::UIViewController() : backend_(new desktop::ControllerState) {}

UIViewController::~UIViewController() { delete ControllerBackend::state(*this); }

bool UIViewController::init() {
  const desktop::ControllerState& state = desktop::stateOf(*this);
  return desktop::sendClass(state.className, "init", {}, [&] { return !state.refusesInit; });
}

}  // namespace platform

namespace desktop {

ControllerState& stateOf(const platform::UIViewController& controller) {
  return *platform::ControllerBackend::state(controller);
}

platform::Object perform(platform::UIViewController& controller, std::string_view selector,
                         const platform::Object& first, const platform::Object& second) {
  for (const platform::Method& method : controller.methods()) {
    if (method.selector.name == selector) return method.invoke(controller, first, second);
  }
  Phone::current().report(stateOf(controller).className + " does not answer \"" +
                          std::string(selector) + "\"");
  return {};
}

std::unique_ptr<platform::UIViewController> makeController(const std::string& className) {
  for (const platform::ControllerClass& known : platform::bundleClasses()) {
    if (className != known.name) continue;
    auto controller = known.make();
    stateOf(*controller).className = className;
    return controller;
  }
  return nullptr;
}

}  // namespace desktop
