#pragma once

#import <UIKit/UIView.h>

@class UIScrollView;

@protocol UIScrollViewDelegate <NSObject>
@optional
- (void)scrollViewDidScroll:(UIScrollView*)scrollView;
@end

@interface UIScrollView : UIView
@property(nonatomic) CGPoint contentOffset;
@property(nonatomic, weak) id<UIScrollViewDelegate> delegate;
@end
