#pragma once

#import <UIKit/UIKit.h>

@class PSSpecifier;

@interface PSViewController : UIViewController
- (id)readPreferenceValue:(PSSpecifier*)specifier;
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier*)specifier;
@end
