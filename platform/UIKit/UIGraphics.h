#pragma once

#include "platform/CoreGraphics/CGContext.h"
#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIImage.h"

namespace platform {

/// Whether a context has no transparency.
enum class Opaque : bool { No = false, Yes = true };

/// Makes a new context for pictures of `size` points the current one. `scale` is how many pixels
/// it has to a point; 0 takes the screen's.
void UIGraphicsBeginImageContextWithOptions(const CGSize& size, Opaque opaque, double scale);

/// The current context; none when none was begun.
CGContext UIGraphicsGetCurrentContext();

/// The picture drawn so far into the current context; none without one.
UIImage UIGraphicsGetImageFromCurrentImageContext();

/// Goes back to the context that was the current one before.
void UIGraphicsEndImageContext();

}  // namespace platform
