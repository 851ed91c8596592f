#pragma once

#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>
#import <UIKit/UIResponder.h>

@class CALayer, NSLayoutXAxisAnchor, NSLayoutYAxisAnchor, UIColor;

typedef NS_ENUM(NSInteger, UIViewContentMode) {
  UIViewContentModeScaleToFill = 0,
  UIViewContentModeScaleAspectFit = 1,
  UIViewContentModeCenter = 4,
};

typedef NS_OPTIONS(NSUInteger, UIViewAutoresizing) {
  UIViewAutoresizingNone = 0,
  UIViewAutoresizingFlexibleWidth = 1 << 1,
};

typedef NS_OPTIONS(NSUInteger, UIViewAnimationOptions) {
  UIViewAnimationOptionCurveEaseInOut = 0 << 16,
  UIViewAnimationOptionCurveEaseOut = 2 << 16,
};

@interface UIView : UIResponder
- (instancetype)initWithFrame:(CGRect)frame;
@property(nonatomic, readonly, strong) CALayer* layer;
@end

@interface UIView (UIViewGeometry)
@property(nonatomic) CGRect frame;
@property(nonatomic) CGRect bounds;
@property(nonatomic) UIViewAutoresizing autoresizingMask;
@end

@interface UIView (UIViewHierarchy)
- (void)addSubview:(UIView*)view;
@end

@interface UIView (UIViewRendering)
@property(nonatomic) BOOL clipsToBounds;
@property(nonatomic, copy) UIColor* backgroundColor;
@property(nonatomic) CGFloat alpha;
@property(nonatomic) UIViewContentMode contentMode;
@property(nonatomic, strong) UIColor* tintColor;
@end

@interface UIView (UIViewAnimationWithBlocks)
+ (void)animateWithDuration:(NSTimeInterval)duration
                      delay:(NSTimeInterval)delay
                    options:(UIViewAnimationOptions)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion;
+ (void)animateWithDuration:(NSTimeInterval)duration animations:(void (^)(void))animations;
@end

@interface UIView (UIConstraintBasedCompatibility)
@property(nonatomic) BOOL translatesAutoresizingMaskIntoConstraints;
@end

@interface UIView (UIViewLayoutConstraintCreation)
@property(nonatomic, readonly, strong) NSLayoutXAxisAnchor* leadingAnchor;
@property(nonatomic, readonly, strong) NSLayoutXAxisAnchor* trailingAnchor;
@property(nonatomic, readonly, strong) NSLayoutYAxisAnchor* topAnchor;
@property(nonatomic, readonly, strong) NSLayoutYAxisAnchor* bottomAnchor;
@end
