/// Foundation's classes that reach outside of the process: their doubles reach into the stand-in
/// phone. They go by names of their own, under which the bundle finds them (`Lookup.mm`).
#import <Foundation/Foundation.h>

#include "platform/Foundation/NSFileManager.h"
#include "platform/Foundation/NSProcessInfo.h"
#include "platform/Foundation/NSTask.h"
#include "tests/device/doubles/Double.h"

using doubles::handle;
using doubles::initialised;
using doubles::object;

@interface DoubleNSFileManager : NSObject
@end

@implementation DoubleNSFileManager

static platform::NSFileManager own(DoubleNSFileManager* self) {
  return handle<platform::NSFileManager>(self);
}

#include "tests/device/doubles/Dealloc.inc"
+ (instancetype)defaultManager {
  return object(platform::NSFileManager::defaultManager());
}
- (NSArray*)contentsOfDirectoryAtPath:(NSString*)path error:(NSError**)error {
  NSAssert(!error, @"the stand-in does not say why");
  return object(own(self).contentsOfDirectoryAtPath(handle<platform::NSString>(path)));
}
- (BOOL)fileExistsAtPath:(NSString*)path {
  return own(self).fileExistsAtPath(handle<platform::NSString>(path));
}
- (BOOL)removeItemAtPath:(NSString*)path error:(NSError**)error {
  NSAssert(!error, @"the stand-in does not say why");
  return own(self).removeItemAtPath(handle<platform::NSString>(path));
}

@end

@interface DoubleNSProcessInfo : NSObject
@end

@implementation DoubleNSProcessInfo

#include "tests/device/doubles/Dealloc.inc"
+ (instancetype)processInfo {
  return object(platform::NSProcessInfo::processInfo());
}
- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version {
  return handle<platform::NSProcessInfo>(self).isOperatingSystemAtLeastVersion(
      {version.majorVersion, version.minorVersion, version.patchVersion});
}

@end

@interface DoubleNSError : NSObject
@end

@implementation DoubleNSError
#include "tests/device/doubles/Dealloc.inc"
@end

@interface DoubleNSFileHandle : NSObject
@end

@implementation DoubleNSFileHandle

#include "tests/device/doubles/Dealloc.inc"
- (NSData*)readDataToEndOfFile {
  return object(handle<platform::NSFileHandle>(self).readDataToEndOfFile());
}

@end

@interface DoubleNSPipe : NSObject
@end

@implementation DoubleNSPipe

#include "tests/device/doubles/Dealloc.inc"
+ (instancetype)pipe {
  return object(platform::NSPipe::pipe());
}
- (DoubleNSFileHandle*)fileHandleForReading {
  return object(handle<platform::NSPipe>(self).fileHandleForReading());
}

@end

@interface DoubleNSTask : NSObject
@end

@implementation DoubleNSTask

static platform::NSTask own(DoubleNSTask* self) { return handle<platform::NSTask>(self); }

#include "tests/device/doubles/Dealloc.inc"
- (instancetype)init {
  return initialised(self, platform::NSTask::init());
}
- (void)setLaunchPath:(NSString*)path {
  own(self).setLaunchPath(handle<platform::NSString>(path));
}
- (void)setArguments:(NSArray*)arguments {
  own(self).setArguments(handle<platform::NSArray>(arguments));
}
- (id)standardOutput {
  return object(own(self).standardOutput());
}
- (void)setStandardOutput:(id)output {
  own(self).setStandardOutput(handle<platform::NSPipe>(output));
}
- (void)launch {
  own(self).launch();
}

@end
