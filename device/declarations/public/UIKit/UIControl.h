#pragma once

#import <UIKit/UIView.h>

typedef NS_OPTIONS(NSUInteger, UIControlEvents) {
  UIControlEventTouchUpInside = 1 << 6,
  UIControlEventValueChanged = 1 << 12,
};

@interface UIControl : UIView
- (void)addTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)controlEvents;
@end
