#pragma once

#import <Foundation/Foundation.h>

#include "platform/Foundation/NSString.h"

namespace device {

/// Where a file of the phone lies under the jailbreak's layout: the path itself, or the same below
/// a prefix. Each path that a body hands on goes through here, once; one that has been moved before
/// stays where it is. Nil for none.
::NSString* resolved(const platform::NSString& path);

/// The environment in which other programs find each other; nil where that is this program's own.
::NSDictionary* environment();

}  // namespace device
