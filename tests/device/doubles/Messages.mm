#include "tests/device/doubles/Messages.h"

#include <array>
#include <stdexcept>
#include <utility>

#include "desktop/Phone.h"
#include "tests/device/doubles/Double.h"
#include "tests/device/doubles/Event.h"

namespace doubles {

namespace {

using platform::Object;

/// More than the largest class of the bundle has.
constexpr std::size_t mostSelectors = 256;

/// A method of the stand-in's table is a function and no closure, so there is a function for the
/// place of each selector in this list.
std::vector<SEL> selectors;

Object send(UIViewController* target, SEL selector, const Object& first, const Object& second) {
  return event([&]() -> Object {
    NSMethodSignature* signature = [target methodSignatureForSelector:selector];
    NSInvocation* message = [NSInvocation invocationWithMethodSignature:signature];
    [message setSelector:selector];
    id arguments[] = {object(first), object(second)};
    for (NSUInteger index = 2; index < [signature numberOfArguments]; ++index) {
      [message setArgument:&arguments[index - 2] atIndex:NSInteger(index)];
    }
    [message invokeWithTarget:target];
    if (*[signature methodReturnType] != '@') return {};
    id answer = nil;
    [message getReturnValue:&answer];
    return handle(answer);
  });
}

template <std::size_t Index>
Object invoke(platform::UIViewController& self, const Object& first, const Object& second) {
  return send(behind(self), selectors.at(Index), first, second);
}

using Invoke = Object (*)(platform::UIViewController&, const Object&, const Object&);

template <std::size_t... Index>
constexpr std::array<Invoke, sizeof...(Index)> invokes(std::index_sequence<Index...>) {
  return {&invoke<Index>...};
}

Invoke invokeOf(SEL selector) {
  static constexpr auto functions = invokes(std::make_index_sequence<mostSelectors>());
  for (std::size_t index = 0; index < selectors.size(); ++index) {
    if (sel_isEqual(selectors[index], selector)) return functions.at(index);
  }
  selectors.push_back(selector);
  return functions.at(selectors.size() - 1);
}

/// Only objects travel in a message that the stand-in sends by its selector.
bool takesObjects(UIViewController* controller, SEL selector) {
  NSMethodSignature* signature = [controller methodSignatureForSelector:selector];
  if ([signature numberOfArguments] > 4) return false;
  for (NSUInteger index = 2; index < [signature numberOfArguments]; ++index) {
    if (*[signature getArgumentTypeAtIndex:index] != '@') return false;
  }
  return *[signature methodReturnType] == '@' || *[signature methodReturnType] == 'v';
}

}  // namespace

std::vector<platform::Method> methodsOf(UIViewController* controller) {
  std::vector<platform::Method> methods;
  unsigned count = 0;
  Method* own = class_copyMethodList(object_getClass(controller), &count);
  for (unsigned index = 0; index < count; ++index) {
    SEL selector = method_getName(own[index]);
    if (takesObjects(controller, selector))
      methods.push_back({sel_getName(selector), invokeOf(selector)});
  }
  free(own);
  return methods;
}

UIViewController* controllerOnTop() {
  return behind(*desktop::Phone::current().springBoard.navigation()->top().controller);
}

}  // namespace doubles
