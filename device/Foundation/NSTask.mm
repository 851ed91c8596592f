#include "platform/Foundation/NSTask.h"

#import <Foundation/NSTask.h>

#include "device/Native.h"
#include "device/Paths.h"

namespace platform {

using device::native;

namespace {

/// Where the task writes, if that is a pipe; it may be a file as well.
::NSPipe* outputOf(::NSTask* task) {
  id output = [task standardOutput];
  return [output isKindOfClass:[::NSPipe class]] ? output : nil;
}

}  // namespace

NSTask NSTask::init() {
  const NSTask task = device::adopt<NSTask>([[::NSTask alloc] init]);
  if (::NSDictionary* environment = device::environment()) {
    [native(task) setEnvironment:environment];
  }
  return task;
}

void NSTask::setLaunchPath(const NSString& path) {
  [native(*this) setLaunchPath:device::resolved(path)];
}

void NSTask::setArguments(const NSArray& arguments) {
  [native(*this) setArguments:native(arguments)];
}

NSPipe NSTask::standardOutput() const { return device::handle<NSPipe>(outputOf(native(*this))); }

void NSTask::setStandardOutput(const NSPipe& pipe) {
  [native(*this) setStandardOutput:native(pipe)];
}

void NSTask::launch() {
  @try {
    [native(*this) launch];
  } @catch (::NSException*) {
    // Nobody else will close it, and its reader would wait for ever.
    [[outputOf(native(*this)) fileHandleForWriting] closeFile];
  }
}

}  // namespace platform
