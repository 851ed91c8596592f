#pragma once

#import <Foundation/Foundation.h>

@interface NSValue : NSObject <NSCopying>
@end

@interface NSNumber : NSValue
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithInt:(int)value;
@property(readonly) BOOL boolValue;
@end
