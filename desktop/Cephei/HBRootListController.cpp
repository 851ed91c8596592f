#include "platform/Cephei/HBRootListController.h"

#include "desktop/Message.h"
#include "desktop/UIKit/ControllerState.h"

namespace platform {

void HBRootListController::hb_setAppearanceSettings(const HBAppearanceSettings& settings) {
  desktop::ControllerState& state = desktop::stateOf(*this);
  desktop::sendClass(state.className, "hb_setAppearanceSettings:", {settings},
                     [&] { state.appearance = settings; });
}

}  // namespace platform
