#pragma once

#include "platform/Object.h"

namespace platform {

/// A number or a boolean; which of the two it is, and its width, is kept when it is stored.
class NSNumber : public Object {
 public:
  /// A boolean, which is not the same as the integer 0 or 1 once it is stored.
  static NSNumber numberWithBool(bool value);
  /// An integer.
  static NSNumber numberWithInt(int value);

  /// Whether the number is not 0; false for none, and for an object that has no such answer.
  bool boolValue() const;
};

}  // namespace platform
