#include "platform/QuartzCore/CALayer.h"

#import <QuartzCore/QuartzCore.h>

#include "device/Native.h"

namespace platform {

using device::native;
using device::object;

void CALayer::setBorderWidth(double width) { [native(*this) setBorderWidth:width]; }

void CALayer::setBorderColor(const CGColor& color) {
  [native(*this) setBorderColor:(__bridge CGColorRef)object(color)];
}

void CALayer::setCornerRadius(double radius) { [native(*this) setCornerRadius:radius]; }

void CALayer::renderInContext(const CGContext& context) const {
  [native(*this) renderInContext:(__bridge CGContextRef)object(context)];
}

}  // namespace platform
