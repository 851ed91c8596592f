#pragma once

#import <Foundation/Foundation.h>

@class NSData;

@interface NSFileHandle : NSObject
- (NSData*)readDataToEndOfFile;
- (void)closeFile;
@end

@interface NSPipe : NSObject
@property(readonly, retain) NSFileHandle* fileHandleForReading;
@property(readonly, retain) NSFileHandle* fileHandleForWriting;
+ (NSPipe*)pipe;
@end
