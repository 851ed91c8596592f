#pragma once

#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

typedef NS_ENUM(NSInteger, UIImageRenderingMode) {
  UIImageRenderingModeAutomatic = 0,
  UIImageRenderingModeAlwaysOriginal = 1,
  UIImageRenderingModeAlwaysTemplate = 2,
};

@interface UIImage : NSObject
+ (UIImage*)imageWithContentsOfFile:(NSString*)path;
- (void)drawInRect:(CGRect)rect;
- (UIImage*)imageWithRenderingMode:(UIImageRenderingMode)renderingMode;
@end
