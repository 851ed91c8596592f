#pragma once

#include <algorithm>
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

template <auto Member>
struct Accessor;

template <class Controller, class Value, Value Controller::*Member>
struct Accessor<Member> {
  static Object get(UIViewController& self, const Object&, const Object&) {
    return static_cast<Controller&>(self).*Member;
  }
  static Object set(UIViewController& self, const Object& value, const Object&) {
    static_cast<Controller&>(self).*Member = value.as<Value>();
    return {};
  }
};

}  // namespace detail

/// The table entry of a member function: `method<&QMRoot::respring>("respring")`.
template <auto Function>
constexpr Method method(const char* selector) {
  return {selector, &detail::Invocation<Function>::invoke};
}

/// The table entries of a property: `getter<&QMRoot::iconView>("iconView")` and
/// `setter<&QMRoot::iconView>("setIconView:")`.
template <auto Member>
constexpr Method getter(const char* selector) {
  return {selector, &detail::Accessor<Member>::get};
}
template <auto Member>
constexpr Method setter(const char* selector) {
  return {selector, &detail::Accessor<Member>::set};
}

/// One table of a superclass's methods and a class's own.
template <std::size_t Inherited, std::size_t Own>
constexpr std::array<Method, Inherited + Own> joined(const std::array<Method, Inherited>& inherited,
                                                     const std::array<Method, Own>& own) {
  std::array<Method, Inherited + Own> all;
  std::copy(own.begin(), own.end(), std::copy(inherited.begin(), inherited.end(), all.begin()));
  return all;
}

}  // namespace platform
