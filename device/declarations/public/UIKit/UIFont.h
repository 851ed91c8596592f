#pragma once

#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

@interface UIFont : NSObject
+ (UIFont*)boldSystemFontOfSize:(CGFloat)fontSize;
@end
