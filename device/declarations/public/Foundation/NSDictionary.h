#pragma once

#import <Foundation/Foundation.h>

@class NSString;

@interface NSDictionary<__covariant KeyType, __covariant ObjectType>
    : NSObject <NSCopying, NSMutableCopying>
- (ObjectType)objectForKey:(KeyType)aKey;
- (BOOL)writeToFile:(NSString*)path atomically:(BOOL)useAuxiliaryFile;
+ (instancetype)dictionaryWithDictionary:(NSDictionary<KeyType, ObjectType>*)dict;
+ (NSDictionary<KeyType, ObjectType>*)dictionaryWithContentsOfFile:(NSString*)path;
@end

@interface NSMutableDictionary<KeyType, ObjectType> : NSDictionary <KeyType, ObjectType>
- (void)setObject:(ObjectType)anObject forKey:(KeyType<NSCopying>)aKey;
- (NSMutableDictionary<KeyType, ObjectType>*)initWithContentsOfFile:(NSString*)path;
@end
