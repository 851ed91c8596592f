#pragma once

#include <cstddef>

namespace platform {

/// A row of a table; both are counted from 0.
struct NSIndexPath {
  std::size_t section = 0;
  std::size_t row = 0;
  bool operator==(const NSIndexPath&) const = default;
};

}  // namespace platform
