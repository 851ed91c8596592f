#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/Object.h"

namespace platform {

/// Unicode text. Unlike none, the empty string is an object.
class NSString : public Object {
 public:
  NSString() = default;
  /// The text of a UTF-8 literal; not explicit, so that code reads as with `@"…"`.
  NSString(const char* utf8) : NSString(std::string_view(utf8)) {}
  explicit NSString(std::string_view utf8);

  /// `stringWithFormat:` for formats whose only placeholder is `%@`: each takes the next
  /// argument's description, "(null)" for none.
  static NSString stringWithFormat(const char* format, std::initializer_list<Object> arguments);

  /// `isKindOfClass:`; false for none.
  static bool isKind(const Object& object);

  /// The text without its last extension and the dot before it, as file names have it; a text that
  /// only begins with a dot has none.
  NSString stringByDeletingPathExtension() const;

  /// The text as UTF-8; empty for none.
  std::string UTF8String() const;
};

}  // namespace platform
