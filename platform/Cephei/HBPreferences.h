#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/Object.h"

namespace platform {

/// The platform's preferences service, for one domain.
class HBPreferences : public Object {
 public:
  /// A new object for the domain `identifier`, such as "com.example.thing".
  static HBPreferences initWithIdentifier(const NSString& identifier);

  /// None when the domain has no value for the key.
  Object objectForKey(const NSString& key) const;

  /// Stores the value in the domain, which is made when there is none yet; a value that is none
  /// removes the key.
  void setObject(const Object& object, const NSString& key);

  /// Removes every key of the domain.
  void removeAllObjects();
};

}  // namespace platform
