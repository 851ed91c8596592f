#include "platform/UIKit/UIScrollView.h"

#import <UIKit/UIKit.h>

#include "device/CoreGraphics/Geometry.h"
#include "device/Native.h"

namespace platform {

using device::native;
using device::projected;

CGPoint UIScrollView::contentOffset() const { return projected([native(*this) contentOffset]); }

}  // namespace platform
