#include "device/Controller.h"

#include <string>

#include "platform/Bundle.h"

namespace platform {

/// The way to the controller that owns a C++ controller. It is not retained: it owns, and so lives
/// longer.
struct ControllerBackend {
  static void setOwner(UIViewController& controller, id owner) {
    controller.backend_ = (__bridge void*)owner;
  }
  static id owner(const UIViewController& controller) { return (__bridge id)controller.backend_; }
};

}  // namespace platform

namespace device {

using platform::ControllerBackend;

QMOwner native(const platform::UIViewController& controller) {
  return ControllerBackend::owner(controller);
}

void setOwner(platform::UIViewController& controller, QMOwner owner) {
  ControllerBackend::setOwner(controller, owner);
}

std::shared_ptr<platform::UIViewController> makeController(std::string_view className) {
  for (const platform::ControllerClass& known : platform::bundleClasses()) {
    if (className == known.name) return known.make();
  }
  return nullptr;
}

std::shared_ptr<platform::UIViewController> shared(id<QMController> owned) {
  if (!owned) return nullptr;
  return {[owned ownedController].get(), [kept = adopt<platform::Object>(owned)](auto*) {}};
}

id call(id<QMController> controller, ::SEL selector, id first, id second) {
  platform::UIViewController& self = *[controller ownedController];
  for (const platform::Method& method : self.methods()) {
    if (method.selector.name == sel_getName(selector)) {
      return autoreleased(
          method.invoke(self, handle<platform::Object>(first), handle<platform::Object>(second)));
    }
  }
  return nil;
}

::SEL selector(platform::SEL name) {
  return name ? sel_registerName(std::string(name.name).c_str()) : nullptr;
}

}  // namespace device
