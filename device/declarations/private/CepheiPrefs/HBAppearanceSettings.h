#pragma once

#import <UIKit/UIKit.h>

typedef NS_ENUM(NSUInteger, HBAppearanceSettingsLargeTitleStyle) {
  HBAppearanceSettingsLargeTitleStyleRootOnly,
  HBAppearanceSettingsLargeTitleStyleAlways,
  HBAppearanceSettingsLargeTitleStyleNever,
};

@interface HBAppearanceSettings : NSObject
@property(nonatomic, copy) UIColor* tintColor;
@property(nonatomic, copy) UIColor* navigationBarTintColor;
@property(nonatomic, copy) UIColor* navigationBarTitleColor;
@property(nonatomic, copy) UIColor* navigationBarBackgroundColor;
/// Until version 2 only.
@property(nonatomic) BOOL translucentNavigationBar;
@property(nonatomic) HBAppearanceSettingsLargeTitleStyle largeTitleStyle;
@property(nonatomic, copy) UIColor* tableViewCellTextColor;
@property(nonatomic, copy) UIColor* tableViewCellSeparatorColor;
@end
