#include "platform/Foundation/NSNumber.h"

#include "desktop/Foundation/ValueBody.h"

namespace platform {

using desktop::ValueBody;

NSNumber NSNumber::numberWithBool(bool value) {
  return desktop::make<NSNumber, ValueBody>(plist::Value(value));
}

NSNumber NSNumber::numberWithInt(int value) {
  return desktop::make<NSNumber, ValueBody>(plist::Value::integer(value));
}

}  // namespace platform
