#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSString.h"
#include "platform/Object.h"

namespace platform {

/// The phone's file system.
class NSFileManager : public Object {
 public:
  static NSFileManager defaultManager();

  /// The names in a folder, in the order in which the system lists them; none when it cannot be
  /// listed.
  NSArray contentsOfDirectoryAtPath(const NSString& path) const;

  bool fileExistsAtPath(const NSString& path) const;

  /// False when nothing could be deleted.
  bool removeItemAtPath(const NSString& path) const;
};

}  // namespace platform
