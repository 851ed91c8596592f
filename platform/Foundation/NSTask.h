#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSData.h"
#include "platform/Foundation/NSString.h"
#include "platform/Object.h"

namespace platform {

/// One end of a pipe or of a file.
class NSFileHandle : public Object {
 public:
  /// All that comes until nobody can write any more; blocks until then. None for none.
  NSData readDataToEndOfFile() const;
};

/// A pipe between two processes.
class NSPipe : public Object {
 public:
  /// A new pipe.
  static NSPipe pipe();

  NSFileHandle fileHandleForReading() const;
};

/// Another program, run once.
class NSTask : public Object {
 public:
  /// A task that has yet to be told what to run.
  static NSTask init();

  void setLaunchPath(const NSString& path);
  /// Strings; the program's own name is not among them.
  void setArguments(const NSArray& arguments);

  /// The pipe that takes what the program writes; none while it writes where this one does.
  NSPipe standardOutput() const;
  void setStandardOutput(const NSPipe& pipe);

  /// Starts the program and does not wait for it. When it cannot be started its output is empty.
  void launch();
};

}  // namespace platform
