#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIImage.h"

namespace quillmere {

/// A copy of the picture, stretched to `newSize` points at the screen's scale. A transparent
/// picture for none.
platform::UIImage rescaleImage(const platform::UIImage& picture, platform::CGSize newSize);

/// The picture's shape in that colour, as large as the picture. None for none.
platform::UIImage imageWithTint(const platform::UIImage& picture, const platform::UIColor& color);

}  // namespace quillmere
