#pragma once

#include <string>

namespace settings {

/// A file that the screen offers to the browser.
struct Resource {
  /// Its media type (RFC 6838).
  std::string type;
  std::string bytes;
};

}  // namespace settings
