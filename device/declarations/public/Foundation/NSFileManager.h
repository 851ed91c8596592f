#pragma once

#import <Foundation/Foundation.h>

@class NSArray<__covariant ObjectType>, NSError, NSString;

@interface NSFileManager : NSObject
@property(class, readonly, strong) NSFileManager* defaultManager;
- (NSArray<NSString*>*)contentsOfDirectoryAtPath:(NSString*)path error:(NSError**)error;
- (BOOL)fileExistsAtPath:(NSString*)path;
- (BOOL)removeItemAtPath:(NSString*)path error:(NSError**)error;
@end
