#pragma once

// What the bundle uses of Foundation, declared as Apple documents it, for building without an SDK.

#import <objc/NSObject.h>
#include <stddef.h>

#define FOUNDATION_EXPORT extern "C"
#define NS_ENUM(Type, Name) \
  enum Name : Type Name;    \
  enum Name : Type
#define NS_OPTIONS(Type, Name) \
  Type Name;                   \
  enum : Type

typedef double CGFloat;
typedef double NSTimeInterval;
typedef struct _NSZone NSZone;

@protocol NSCopying
- (id)copyWithZone:(NSZone*)zone;
@end

@protocol NSMutableCopying
- (id)mutableCopyWithZone:(NSZone*)zone;
@end

#import <Foundation/NSArray.h>
#import <Foundation/NSDictionary.h>
#import <Foundation/NSFileHandle.h>
#import <Foundation/NSFileManager.h>
#import <Foundation/NSString.h>
#import <Foundation/NSValue.h>

typedef NSString* NSExceptionName;
__attribute__((__objc_exception__))
@interface NSException : NSObject<NSCopying>
@property(readonly, copy) NSExceptionName name;
@property(readonly, copy) NSString* reason;
@end

@interface NSError : NSObject <NSCopying>
@end

@interface NSData : NSObject <NSCopying, NSMutableCopying>
@end

@interface NSURL : NSObject <NSCopying>
+ (instancetype)URLWithString:(NSString*)URLString;
+ (NSURL*)fileURLWithPath:(NSString*)path;
@property(readonly, copy) NSURL* URLByDeletingPathExtension;
@property(readonly, copy) NSString* lastPathComponent;
@end

@interface NSIndexPath : NSObject <NSCopying>
@end

typedef struct {
  NSInteger majorVersion;
  NSInteger minorVersion;
  NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface NSProcessInfo : NSObject
@property(class, readonly, strong) NSProcessInfo* processInfo;
@property(readonly, copy) NSDictionary<NSString*, NSString*>* environment;
- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version;
@end

FOUNDATION_EXPORT NSString* NSStringFromClass(Class aClass);
FOUNDATION_EXPORT Class NSClassFromString(NSString* aClassName);
FOUNDATION_EXPORT NSString* NSStringFromSelector(SEL aSelector);
FOUNDATION_EXPORT SEL NSSelectorFromString(NSString* aSelectorName);
