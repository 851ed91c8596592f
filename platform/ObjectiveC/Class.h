#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/Object.h"

namespace platform {

/// A class of the platform's run time, as a value that rows can carry.
class Class : public Object {};

/// The class of that name; none when no loaded library has it.
Class NSClassFromString(const NSString& name);

}  // namespace platform
