#pragma once

// The class is part of the phone's Foundation, its declaration only of the desktop's.

#import <Foundation/Foundation.h>

@interface NSTask : NSObject
@property(copy) NSString* launchPath;
@property(copy) NSArray<NSString*>* arguments;
@property(copy) NSDictionary<NSString*, NSString*>* environment;
/// An NSPipe or an NSFileHandle.
@property(retain) id standardOutput;
/// Raises NSInvalidArgumentException when the program cannot be started.
- (void)launch;
@end
