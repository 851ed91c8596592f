#pragma once

#import <UIKit/UIView.h>

@class UIImage;

@interface UIImageView : UIView
- (instancetype)initWithImage:(UIImage*)image;
@property(nonatomic, strong) UIImage* image;
@end
