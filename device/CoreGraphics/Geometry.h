#pragma once

#import <CoreGraphics/CoreGraphics.h>

#include "platform/CoreGraphics/CGGeometry.h"

namespace device {

/// @name The framework's own measures.
/// @{
inline ::CGPoint native(const platform::CGPoint& point) { return {point.x, point.y}; }
inline ::CGSize native(const platform::CGSize& size) { return {size.width, size.height}; }
inline ::CGRect native(const platform::CGRect& rect) {
  return {native(rect.origin), native(rect.size)};
}
/// @}

/// @name The same measures for the bundle.
/// @{
inline platform::CGPoint projected(const ::CGPoint& point) { return {point.x, point.y}; }
inline platform::CGSize projected(const ::CGSize& size) { return {size.width, size.height}; }
inline platform::CGRect projected(const ::CGRect& rect) {
  return {projected(rect.origin), projected(rect.size)};
}
/// @}

}  // namespace device
