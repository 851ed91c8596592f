#pragma once

#include "plist/BinaryFile.h"
#include "plist/Value.h"

namespace plist::binary {

/// The value of an object that is a boolean, a number, a date or a UID; throws Unreadable for an
/// object of a type that no property list has.
Value readScalar(const Object& object);

}  // namespace plist::binary
