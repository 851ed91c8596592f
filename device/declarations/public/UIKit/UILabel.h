#pragma once

#import <UIKit/NSText.h>
#import <UIKit/UIView.h>

@class UIColor, UIFont;

@interface UILabel : UIView
@property(nonatomic, copy) NSString* text;
@property(nonatomic, strong) UIFont* font;
@property(nonatomic, strong) UIColor* textColor;
@property(nonatomic) NSTextAlignment textAlignment;
@end
