#pragma once

#import <UIKit/UIViewController.h>

typedef NS_ENUM(NSInteger, UIAlertActionStyle) {
  UIAlertActionStyleDefault = 0,
  UIAlertActionStyleCancel = 1,
  UIAlertActionStyleDestructive = 2,
};

typedef NS_ENUM(NSInteger, UIAlertControllerStyle) {
  UIAlertControllerStyleActionSheet = 0,
  UIAlertControllerStyleAlert = 1,
};

@interface UIAlertAction : NSObject
+ (instancetype)actionWithTitle:(NSString*)title
                          style:(UIAlertActionStyle)style
                        handler:(void (^)(UIAlertAction* action))handler;
@end

@interface UIAlertController : UIViewController
+ (instancetype)alertControllerWithTitle:(NSString*)title
                                 message:(NSString*)message
                          preferredStyle:(UIAlertControllerStyle)preferredStyle;
- (void)addAction:(UIAlertAction*)action;
@end
