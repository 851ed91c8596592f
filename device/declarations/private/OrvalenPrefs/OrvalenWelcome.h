#pragma once

#import <UIKit/UIKit.h>

/// The maker's welcome screen. Its library need not be there, so the class is looked up by name and
/// never named as a receiver, which would import it.
@interface OrvalenWelcome : UIViewController
@property(nonatomic, copy) NSString* subtitleText;
@property(nonatomic, copy) NSString* item_one_title;
@property(nonatomic, copy) NSString* item_one_description;
@property(nonatomic, copy) NSString* item_two_title;
@property(nonatomic, copy) NSString* item_two_description;
@property(nonatomic, copy) NSString* item_three_title;
@property(nonatomic, copy) NSString* item_three_description;
@property(nonatomic, copy) NSString* buttonTitle;
@property(nonatomic, copy) NSString* buttonCaption;
@property(nonatomic, copy) NSString* titleText;
@property(nonatomic, copy) NSString* package_ID;
@property(nonatomic, copy) NSString* bundle_Name;
@property(nonatomic, retain) UIColor* tintColor;
@end
