#include "platform/Foundation/NSString.h"

#include "desktop/Foundation/ValueBody.h"
#include "desktop/Foundation/Values.h"
#include "desktop/Message.h"

namespace platform {

using desktop::ValueBody;

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

std::string NSString::UTF8String() const { return desktop::textOf(*this); }

}  // namespace platform
