#pragma once

#import <UIKit/UIViewController.h>

@class UINavigationItem;

@interface UINavigationController : UIViewController
- (void)pushViewController:(UIViewController*)viewController animated:(BOOL)animated;
@end

@interface UIViewController (UINavigationControllerItem)
@property(nonatomic, readonly, strong) UINavigationItem* navigationItem;
@property(nonatomic, readonly, strong) UINavigationController* navigationController;
@end
