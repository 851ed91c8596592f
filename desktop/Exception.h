#pragma once

#include <stdexcept>
#include <string>

namespace desktop {

/// What the platform raises on a programming error; nothing in the bundle catches it.
class Exception : public std::logic_error {
 public:
  /// `name` is the platform's, such as "NSRangeException".
  Exception(const std::string& name, const std::string& reason)
      : std::logic_error(name + ": " + reason) {}
};

inline Exception rangeException(const std::string& reason) { return {"NSRangeException", reason}; }

inline Exception invalidArgument(const std::string& reason) {
  return {"NSInvalidArgumentException", reason};
}

}  // namespace desktop
