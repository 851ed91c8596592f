#pragma once

#import <Foundation/Foundation.h>

@class UIBarButtonItem, UIView;

@interface UINavigationItem : NSObject
@property(nonatomic, copy) NSString* title;
@property(nonatomic, strong) UIView* titleView;
@property(nonatomic, strong) UIBarButtonItem* rightBarButtonItem;
@end
