#pragma once

#import <UIKit/UIView.h>

@class UILabel;

typedef NS_ENUM(NSInteger, UITableViewCellStyle) { UITableViewCellStyleDefault = 0 };

typedef NS_ENUM(NSInteger, UITableViewCellEditingStyle) {
  UITableViewCellEditingStyleNone = 0,
  UITableViewCellEditingStyleDelete = 1,
  UITableViewCellEditingStyleInsert = 2,
};

@interface UITableViewCell : UIView
- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString*)reuseIdentifier;
@property(nonatomic, readonly, strong) UILabel* textLabel;
@end
