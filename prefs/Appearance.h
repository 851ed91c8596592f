#pragma once

#include "platform/Cephei/HBAppearanceSettings.h"
#include "platform/UIKit/UIColor.h"

namespace quillmere {

/// A fresh object of the add-on's orange (`accent`), opaque.
platform::UIColor accentColor();

/// A fresh object with the look that every page wears.
platform::HBAppearanceSettings sharedAppearance();

}  // namespace quillmere
