#include "platform/Foundation/NSString.h"

#include <algorithm>

#include "desktop/Foundation/ValueBody.h"
#include "desktop/Foundation/Values.h"
#include "desktop/Message.h"
#include "plist/TextBlock.h"

namespace platform {

using desktop::ValueBody;

namespace {

/// Without the slashes at the end, which do not make a path another one; "/" stays.
std::string_view withoutTrailingSlashes(std::string_view path) {
  while (path.size() > 1 && path.ends_with('/')) path.remove_suffix(1);
  return path;
}

/// A dot that a file name begins with hides the file; it begins no extension.
std::string_view withoutExtension(std::string_view path) {
  path = withoutTrailingSlashes(path);
  const auto mark = std::find_if(path.rbegin(), path.rend(),
                                 [](char letter) { return letter == '.' || letter == '/'; });
  if (mark == path.rend() || *mark == '/') return path;
  const std::string_view stem(path.begin(), mark.base() - 1);
  return stem.empty() || stem.ends_with('/') ? path : stem;
}

}  // namespace

NSString::NSString(std::string_view utf8) {
  static_cast<Object&>(*this) = desktop::make<Object, ValueBody>(plist::Value::string(utf8));
}

NSString NSString::stringWithFormat(const char* format, std::initializer_list<Object> arguments) {
  std::string text;
  auto argument = arguments.begin();
  for (std::string_view rest = format; !rest.empty();) {
    const std::size_t placeholder = rest.find("%@");
    text += rest.substr(0, placeholder);
    if (placeholder == std::string_view::npos) break;
    text += desktop::description(argument == arguments.end() ? Object() : *argument++);
    rest.remove_prefix(placeholder + 2);
  }
  return NSString(text);
}

bool NSString::isKind(const Object& object) {
  return desktop::send<desktop::Body>(object, "isKindOfClass:", {"NSString"},
                                      [](desktop::Body& self) {
                                        const auto* body = desktop::bodyAs<ValueBody>(&self);
                                        return body && body->value.string().has_value();
                                      });
}

NSString NSString::stringByDeletingPathExtension() const {
  return desktop::send<ValueBody>(*this, "stringByDeletingPathExtension", {}, [](ValueBody& self) {
    const auto text = self.value.string();
    if (!text) throw desktop::invalidArgument(self.debugDescription() + " is no string");
    const std::string_view stem = withoutExtension(*text);
    return desktop::make<NSString, ValueBody>(plist::part(self.value, 0, stem.size()));
  });
}

std::string NSString::UTF8String() const { return desktop::textOf(*this); }

}  // namespace platform
