#pragma once

#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

@interface UIColor : NSObject
+ (UIColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
@property(class, nonatomic, readonly) UIColor* whiteColor;
@property(class, nonatomic, readonly) UIColor* clearColor;
@property(nonatomic, readonly) CGColorRef CGColor;
@end
