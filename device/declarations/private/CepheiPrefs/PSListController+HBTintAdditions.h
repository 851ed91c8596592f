#pragma once

#import <Preferences/PSListController.h>

@class HBAppearanceSettings;

@interface PSListController (HBTintAdditions)
@property(nonatomic, copy, setter=hb_setAppearanceSettings:)
    HBAppearanceSettings* hb_appearanceSettings;
@end
