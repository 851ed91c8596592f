#pragma once

#import <Foundation/Foundation.h>

@class UIView;

@interface UIBarItem : NSObject
@property(nonatomic, copy) NSString* title;
@end

@interface UIBarButtonItem : UIBarItem
- (instancetype)initWithCustomView:(UIView*)customView;
@end
