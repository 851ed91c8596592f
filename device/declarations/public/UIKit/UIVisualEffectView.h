#pragma once

#import <UIKit/UIView.h>

typedef NS_ENUM(NSInteger, UIBlurEffectStyle) { UIBlurEffectStyleRegular = 4 };

@interface UIVisualEffect : NSObject
@end

@interface UIBlurEffect : UIVisualEffect
+ (UIBlurEffect*)effectWithStyle:(UIBlurEffectStyle)style;
@end

@interface UIVisualEffectView : UIView
- (instancetype)initWithEffect:(UIVisualEffect*)effect;
@end
