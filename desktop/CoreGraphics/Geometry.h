#pragma once

#include <string>

#include "platform/CoreGraphics/CGGeometry.h"

namespace desktop {

/// "{w, h}", in points: the form of `NSStringFromCGSize`. Numbers are as short as they can be
/// without changing.
std::string text(const platform::CGSize& size);

/// "{{x, y}, {w, h}}", in points: the form of `NSStringFromCGRect`.
std::string text(const platform::CGRect& rect);

}  // namespace desktop
