#include "platform/Bundle.h"

#include "lotties/QMLottiesList.h"
#include "prefs/QMClockVC.h"
#include "prefs/QMColorVC.h"
#include "prefs/QMQuickActionsVC.h"
#include "prefs/QMRoot.h"

namespace quillmere {

template <class Controller>
std::shared_ptr<platform::UIViewController> make() {
  return std::make_shared<Controller>();
}

}  // namespace quillmere

std::span<const platform::ControllerClass> platform::bundleClasses() {
  using namespace quillmere;
  static constexpr ControllerClass classes[] = {
      {"QMRoot", &make<QMRoot>},
      {"QMColorVC", &make<QMColorVC>},
      {"QMClockVC", &make<QMClockVC>},
      {"QMQuickActionsVC", &make<QMQuickActionsVC>},
      {QMLottiesList::className, &make<QMLottiesList>},
  };
  return classes;
}
