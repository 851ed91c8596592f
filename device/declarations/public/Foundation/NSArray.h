#pragma once

#import <Foundation/Foundation.h>

@class NSPredicate;

@interface NSArray<__covariant ObjectType> : NSObject <NSCopying, NSMutableCopying>
@property(readonly) NSUInteger count;
- (ObjectType)objectAtIndex:(NSUInteger)index;
+ (instancetype)array;
+ (instancetype)arrayWithObject:(ObjectType)anObject;
+ (instancetype)arrayWithObjects:(const ObjectType[])objects count:(NSUInteger)count;
- (instancetype)initWithArray:(NSArray<ObjectType>*)array;
- (NSArray<ObjectType>*)filteredArrayUsingPredicate:(NSPredicate*)predicate;
@end

@interface NSMutableArray<ObjectType> : NSArray <ObjectType>
- (void)addObject:(ObjectType)anObject;
- (void)insertObject:(ObjectType)anObject atIndex:(NSUInteger)index;
- (void)replaceObjectAtIndex:(NSUInteger)index withObject:(ObjectType)anObject;
- (void)removeObject:(ObjectType)anObject;
- (void)removeObjectsInArray:(NSArray<ObjectType>*)otherArray;
@end

@interface NSPredicate : NSObject <NSCopying>
+ (NSPredicate*)predicateWithFormat:(NSString*)predicateFormat, ...;
@end
