#pragma once

#import <UIKit/UIKit.h>

#include "platform/UIKit/NSIndexPath.h"

namespace device {

inline platform::NSIndexPath indexPath(::NSIndexPath* path) {
  return {std::size_t(path.section), std::size_t(path.row)};
}

inline ::NSIndexPath* native(const platform::NSIndexPath& path) {
  return [::NSIndexPath indexPathForRow:NSInteger(path.row) inSection:NSInteger(path.section)];
}

}  // namespace device
