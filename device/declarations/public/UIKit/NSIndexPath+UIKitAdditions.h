#pragma once

#import <Foundation/Foundation.h>

@interface NSIndexPath (UIKitAdditions)
+ (instancetype)indexPathForRow:(NSInteger)row inSection:(NSInteger)section;
@property(nonatomic, readonly) NSInteger section;
@property(nonatomic, readonly) NSInteger row;
@end
