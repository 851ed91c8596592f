#pragma once

#import <Foundation/Foundation.h>

typedef NSUInteger NSStringEncoding;
enum : NSStringEncoding { NSUTF8StringEncoding = 4 };

@interface NSString : NSObject <NSCopying, NSMutableCopying>
- (instancetype)initWithBytes:(const void*)bytes
                       length:(NSUInteger)length
                     encoding:(NSStringEncoding)encoding;
+ (instancetype)stringWithUTF8String:(const char*)nullTerminatedCString;
+ (instancetype)stringWithFormat:(NSString*)format, ...;
@property(readonly) const char* UTF8String;
- (BOOL)isEqualToString:(NSString*)aString;
@property(readonly, copy) NSString* stringByDeletingPathExtension;
@end
