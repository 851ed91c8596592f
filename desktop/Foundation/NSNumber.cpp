#include "platform/Foundation/NSNumber.h"

#include "desktop/Foundation/ValueBody.h"
#include "desktop/Foundation/Values.h"

namespace platform {

using desktop::ValueBody;

NSNumber NSNumber::numberWithBool(bool value) {
  return desktop::make<NSNumber, ValueBody>(plist::Value(value));
}

NSNumber NSNumber::numberWithInt(int value) {
  return desktop::make<NSNumber, ValueBody>(plist::Value::integer(value));
}

bool NSNumber::boolValue() const { return desktop::boolValue(*this); }

}  // namespace platform
