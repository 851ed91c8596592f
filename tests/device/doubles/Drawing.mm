#import <QuartzCore/QuartzCore.h>
#import <UIKit/UIKit.h>

#include "desktop/Message.h"
#include "platform/QuartzCore/CALayer.h"
#include "platform/UIKit/NSLayoutConstraint.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UIImage.h"
#include "tests/device/doubles/Double.h"
#include "tests/device/doubles/Geometry.h"

using doubles::handle;
using doubles::object;
using doubles::rect;

/// Core Graphics' references are objects to the run time.
@interface DoubleCGColor : NSObject
@end
@implementation DoubleCGColor
#include "tests/device/doubles/Dealloc.inc"
@end
@interface DoubleCGContext : NSObject
@end
@implementation DoubleCGContext
#include "tests/device/doubles/Dealloc.inc"
@end

@implementation UIColor

#include "tests/device/doubles/Dealloc.inc"
+ (UIColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha {
  return object(platform::UIColor::colorWithRed(red, green, blue, alpha));
}
+ (UIColor*)whiteColor {
  return object(platform::UIColor::whiteColor());
}
+ (UIColor*)clearColor {
  return object(platform::UIColor::clearColor());
}
- (CGColorRef)CGColor {
  return (CGColorRef)object(handle<platform::UIColor>(self).CGColor());
}

@end

@implementation UIFont
#include "tests/device/doubles/Dealloc.inc"
+ (UIFont*)boldSystemFontOfSize:(CGFloat)size {
  return object(platform::UIFont::boldSystemFontOfSize(size));
}
@end

@implementation UIImage

#include "tests/device/doubles/Dealloc.inc"
+ (UIImage*)imageWithContentsOfFile:(NSString*)path {
  return object(platform::UIImage::imageWithContentsOfFile(handle<platform::NSString>(path)));
}
- (UIImage*)imageWithRenderingMode:(UIImageRenderingMode)mode {
  return object(
      handle<platform::UIImage>(self).imageWithRenderingMode(platform::UIImageRenderingMode(mode)));
}
- (void)drawInRect:(CGRect)area {
  handle<platform::UIImage>(self).drawInRect(rect(area));
}

@end

@implementation CALayer

#include "tests/device/doubles/Dealloc.inc"

static platform::CALayer own(CALayer* self) { return handle<platform::CALayer>(self); }

- (void)setBorderWidth:(CGFloat)width {
  own(self).setBorderWidth(width);
}
- (void)setBorderColor:(CGColorRef)color {
  own(self).setBorderColor(handle<platform::CGColor>((id)color));
}
- (void)setCornerRadius:(CGFloat)radius {
  own(self).setCornerRadius(radius);
}
- (void)renderInContext:(CGContextRef)context {
  own(self).renderInContext(handle<platform::CGContext>((id)context));
}

@end

void UIGraphicsBeginImageContextWithOptions(CGSize size, BOOL opaque, CGFloat scale) {
  platform::UIGraphicsBeginImageContextWithOptions({size.width, size.height},
                                                   platform::Opaque(bool(opaque)), scale);
}
CGContextRef UIGraphicsGetCurrentContext() {
  return (CGContextRef)object(platform::UIGraphicsGetCurrentContext());
}
UIImage* UIGraphicsGetImageFromCurrentImageContext() {
  return object(platform::UIGraphicsGetImageFromCurrentImageContext());
}
void UIGraphicsEndImageContext() { platform::UIGraphicsEndImageContext(); }

@implementation NSLayoutAnchor

#include "tests/device/doubles/Dealloc.inc"
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor*)anchor {
  return object(handle<platform::NSLayoutAnchor>(self).constraintEqualToAnchor(
      handle<platform::NSLayoutAnchor>(anchor)));
}

@end

@implementation NSLayoutConstraint

#include "tests/device/doubles/Dealloc.inc"
+ (void)activateConstraints:(NSArray*)constraints {
  std::string list;
  for (NSLayoutConstraint* each in constraints) {
    list += (list.empty() ? "" : ", ") + desktop::description(handle(each));
  }
  desktop::sendClass("NSLayoutConstraint", "activateConstraints:", {std::string_view(list)}, [] {});
}

@end
