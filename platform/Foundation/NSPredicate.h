#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/Object.h"

namespace platform {

/// A question about an object.
class NSPredicate : public Object {
 public:
  /// Of the platform's predicate language, the comparison "self ENDSWITH 'TEXT'", which compares
  /// exactly. Raises `NSInvalidArgumentException` for what cannot be parsed.
  static NSPredicate predicateWithFormat(const NSString& format);
};

}  // namespace platform
