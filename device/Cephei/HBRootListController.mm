#include "platform/Cephei/HBRootListController.h"

#import <CepheiPrefs/HBRootListController.h>
#import <CepheiPrefs/PSListController+HBTintAdditions.h>

#include "device/Controller.h"
#include "device/Native.h"

namespace platform {

void HBRootListController::hb_setAppearanceSettings(const HBAppearanceSettings& settings) {
  auto* list = (::HBRootListController*)device::native(*this);
  [list hb_setAppearanceSettings:device::native(settings)];
}

}  // namespace platform
