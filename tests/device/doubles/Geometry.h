#pragma once

#import <UIKit/UIKit.h>

#include "platform/CoreGraphics/CGGeometry.h"

namespace doubles {

inline platform::CGRect rect(CGRect from) {
  return {{from.origin.x, from.origin.y}, {from.size.width, from.size.height}};
}

inline CGRect rect(const platform::CGRect& from) {
  return {{from.origin.x, from.origin.y}, {from.size.width, from.size.height}};
}

}  // namespace doubles
