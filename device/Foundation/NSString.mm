#include "platform/Foundation/NSString.h"

#include <cassert>

#include "device/Native.h"

namespace platform {

using device::adopt;
using device::handle;
using device::native;
using device::object;

NSString::NSString(std::string_view utf8)
    : Object(adopt<Object>([[::NSString alloc] initWithBytes:utf8.data()
                                                      length:utf8.size()
                                                    encoding:NSUTF8StringEncoding])) {}

NSString NSString::stringWithFormat(const char* format, std::initializer_list<Object> arguments) {
  // What a format does not use is passed in vain, which is harmless.
  assert(arguments.size() <= 4);
  id passed[4] = {};
  for (std::size_t index = 0; index < arguments.size(); ++index)
    passed[index] = object(arguments.begin()[index]);
  return handle<NSString>([::NSString
      stringWithFormat:native(NSString(format)), passed[0], passed[1], passed[2], passed[3]]);
}

bool NSString::isKind(const Object& candidate) {
  return [object(candidate) isKindOfClass:[::NSString class]];
}

NSString NSString::stringByDeletingPathExtension() const {
  return handle<NSString>([native(*this) stringByDeletingPathExtension]);
}

std::string NSString::UTF8String() const {
  const char* utf8 = [native(*this) UTF8String];
  return utf8 ? utf8 : "";
}

}  // namespace platform
