#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/Object.h"

namespace platform {

/// Whether a file is written aside and then put in place, so that a reader sees the old or the new.
enum class Atomically : bool { No = false, Yes = true };

/// Values by their string keys.
class NSDictionary : public Object {
 public:
  /// The dictionary that a property-list file holds; none when the file is missing, unreadable or
  /// holds anything else.
  static NSDictionary dictionaryWithContentsOfFile(const NSString& path);

  /// None when the key is absent.
  Object objectForKey(const NSString& key) const;
};

/// A dictionary that can be changed.
class NSMutableDictionary : public NSDictionary {
 public:
  /// A new empty dictionary.
  static NSMutableDictionary init();

  /// As `dictionaryWithContentsOfFile`, into a new dictionary.
  static NSMutableDictionary initWithContentsOfFile(const NSString& path);

  /// Replaces any earlier value. Raises `NSInvalidArgumentException` when the value or the key is
  /// none.
  void setObject(const Object& object, const NSString& key);

  /// Writes a property-list file; false when that fails (the file is then as it was).
  bool writeToFile(const NSString& path, Atomically atomically) const;
};

}  // namespace platform
