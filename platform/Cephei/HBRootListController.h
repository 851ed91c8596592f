#pragma once

#include "platform/Cephei/HBAppearanceSettings.h"
#include "platform/Preferences/PSListController.h"

namespace platform {

/// A settings page with a look of its own.
class HBRootListController : public PSListController {
 protected:
  /// `hb_setAppearanceSettings:`: gives the page this look. It counts only in `init` and
  /// `viewDidLoad`.
  void hb_setAppearanceSettings(const HBAppearanceSettings& settings);
};

}  // namespace platform
