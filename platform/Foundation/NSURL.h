#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/Object.h"

namespace platform {

/// An address (RFC 3986).
class NSURL : public Object {
 public:
  /// None when the text is no address.
  static NSURL URLWithString(const NSString& text);
};

}  // namespace platform
