#pragma once

#include <initializer_list>
#include <string_view>
#include <type_traits>

#include "desktop/Body.h"
#include "desktop/Journal.h"
#include "desktop/Phone.h"

namespace desktop {

/// The one door to an object: nothing happens and nothing is answered for none; else the message
/// is recorded and `work` is done on the body. An object of another class raises
/// `NSInvalidArgumentException`, as a message that the receiver does not understand.
template <class T, class Work>
std::invoke_result_t<Work, T&> send(const platform::Object& receiver, std::string_view selector,
                                    std::initializer_list<Argument> arguments, Work&& work) {
  if (!receiver) return std::invoke_result_t<Work, T&>();
  Body& any = *bodyOf(receiver);
  Journal& journal = Phone::current().journal;
  if (journal.isRecording()) journal.record(any.className(), selector, arguments);
  T* body = bodyAs<T>(&any);
  if (!body) {
    throw invalidArgument(std::string(any.className()) + " does not understand " +
                          std::string(selector));
  }
  return work(*body);
}

/// The door to a class, to a function or to a controller: recorded, then done.
template <class Work>
std::invoke_result_t<Work> sendClass(std::string_view receiver, std::string_view selector,
                                     std::initializer_list<Argument> arguments, Work&& work) {
  Journal& journal = Phone::current().journal;
  if (journal.isRecording()) journal.record(receiver, selector, arguments);
  return work();
}

}  // namespace desktop
