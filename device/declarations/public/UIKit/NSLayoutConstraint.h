#pragma once

#import <Foundation/Foundation.h>

@interface NSLayoutConstraint : NSObject
+ (void)activateConstraints:(NSArray<NSLayoutConstraint*>*)constraints;
@end
