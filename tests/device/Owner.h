#pragma once

#import <Foundation/Foundation.h>
#include <functional>

namespace owner {

/// Whether the C++ controller that `controller` owns now is still there, asked later.
std::function<bool()> watch(id controller);

}  // namespace owner
