#pragma once

#import <Foundation/Foundation.h>

@class NSLayoutConstraint;

@interface NSLayoutAnchor<AnchorType> : NSObject
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor<AnchorType>*)anchor
    __attribute__((warn_unused_result));
@end

@class NSLayoutXAxisAnchor, NSLayoutYAxisAnchor;

@interface NSLayoutXAxisAnchor : NSLayoutAnchor <NSLayoutXAxisAnchor*>
@end

@interface NSLayoutYAxisAnchor : NSLayoutAnchor <NSLayoutYAxisAnchor*>
@end
