#include "platform/ObjectiveC/Class.h"

#include <algorithm>
#include <array>

#include "desktop/Message.h"
#include "desktop/ObjectiveC/ClassBody.h"
#include "platform/Bundle.h"

namespace desktop {

namespace {

/// The cell classes that third-party libraries bring to the Settings app.
constexpr std::array<std::string_view, 2> cellClasses = {"CSColorDisplayCell", "OrvalenTripleCell"};

bool isLoaded(const std::string& name) {
  return std::ranges::find(cellClasses, name) != cellClasses.end() ||
         std::ranges::find(platform::bundleClasses(), std::string_view(name),
                           &platform::ControllerClass::name) != platform::bundleClasses().end();
}

}  // namespace

std::string nameOfClass(const platform::Object& object) {
  const auto* body = bodyAs<ClassBody>(object);
  return body ? body->name : "";
}

}  // namespace desktop

namespace platform {

Class NSClassFromString(const NSString& name) {
  return desktop::sendClass("objc", "NSClassFromString:", {name}, [&] {
    const std::string text = name.UTF8String();
    return desktop::isLoaded(text) && !desktop::Phone::current().missingClasses.contains(text)
               ? desktop::make<Class, desktop::ClassBody>(text)
               : Class();
  });
}

}  // namespace platform
