#pragma once

#include "platform/Foundation/NSString.h"

namespace platform {

/// What the device answers to a question about itself, "ProductVersion" say; none when it does not
/// know.
NSString MGCopyAnswer(const NSString& question);

}  // namespace platform
