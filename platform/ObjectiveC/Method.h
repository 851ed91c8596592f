#pragma once

#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "platform/Object.h"
#include "platform/ObjectiveC/SEL.h"

namespace platform {

class UIViewController;

/// One method of a controller that rows, controls and delegates call by its selector.
/// Each controller class lists its own in one table, made with `method`; both backends read it.
struct Method {
  SEL selector;
  /// Calls the method with as many of the two arguments as it takes; none when it returns nothing.
  Object (*invoke)(UIViewController& self, const Object& first, const Object& second);
};

namespace detail {

template <auto Function>
struct Invocation;

template <class Controller, class Result, class... Arguments,
          Result (Controller::*Function)(Arguments...)>
struct Invocation<Function> {
  static_assert(sizeof...(Arguments) <= 2, "a message that a row sends has two arguments at most");

  static Object invoke(UIViewController& self, const Object& first, const Object& second) {
    return call(static_cast<Controller&>(self), {&first, &second},
                std::index_sequence_for<Arguments...>{});
  }

 private:
  template <std::size_t... Index>
  static Object call(Controller& self, std::array<const Object*, 2> arguments,
                     std::index_sequence<Index...>) {
    if constexpr (std::is_void_v<Result>) {
      (self.*Function)(arguments[Index]->template as<std::remove_cvref_t<Arguments>>()...);
      return {};
    } else {
      return (self.*Function)(arguments[Index]->template as<std::remove_cvref_t<Arguments>>()...);
    }
  }
};

}  // namespace detail

/// The table entry of a member function: `method<&QMRoot::respring>("respring")`.
template <auto Function>
constexpr Method method(const char* selector) {
  return {selector, &detail::Invocation<Function>::invoke};
}

}  // namespace platform
