#pragma once

#import <Foundation/Foundation.h>

#include "platform/Object.h"

namespace doubles {

/// The stand-in's counterpart of one of Foundation's values, equal to it; for any other object one
/// that can only be told by its class.
platform::Object valueHandle(id object);

/// Foundation's counterpart of one of the stand-in's values, autoreleased; nil when it is none.
id valueObject(const platform::Object& handle);

}  // namespace doubles
