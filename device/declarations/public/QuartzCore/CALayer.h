#pragma once

#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

@interface CALayer : NSObject
@property CGFloat borderWidth;
@property CGColorRef borderColor;
@property CGFloat cornerRadius;
- (void)renderInContext:(CGContextRef)context;
@end
