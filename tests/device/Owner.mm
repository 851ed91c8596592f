// The projection's own namespace: this file looks at the product's side of a controller.
#undef platform
#include "tests/device/Owner.h"

#include "device/Controller.h"

std::function<bool()> owner::watch(id controller) {
  std::weak_ptr<platform::UIViewController> owned = [(id<QMController>)controller ownedController];
  return [owned] { return !owned.expired(); };
}
