#include "platform/Bundle.h"

#include "prefs/QMClockVC.h"
#include "prefs/QMColorVC.h"
#include "prefs/QMQuickActionsVC.h"
#include "prefs/QMRoot.h"

namespace quillmere {

template <class Controller>
std::unique_ptr<platform::UIViewController> make() {
  return std::make_unique<Controller>();
}

}  // namespace quillmere

std::span<const platform::ControllerClass> platform::bundleClasses() {
  using namespace quillmere;
  static constexpr ControllerClass classes[] = {
      {"QMRoot", &make<QMRoot>},
      {"QMColorVC", &make<QMColorVC>},
      {"QMClockVC", &make<QMClockVC>},
      {"QMQuickActionsVC", &make<QMQuickActionsVC>},
  };
  return classes;
}
