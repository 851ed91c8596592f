#pragma once

#import <UIKit/UIKit.h>

@class PSSpecifier;

@interface PSViewController : UIViewController
- (instancetype)initForContentSize:(CGSize)contentSize;
- (id)readPreferenceValue:(PSSpecifier*)specifier;
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier*)specifier;
@end
