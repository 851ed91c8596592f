#pragma once

#include <objc/message.h>
#include <objc/runtime.h>

namespace bench {

/// Sends a message to an object (or a class) through the Objective-C run time, as a compiler of
/// that language does: `send<long>(array, "count")`. The caller states the types of answer and
/// arguments.
template <class Answer = id, class... Arguments>
Answer send(id receiver, const char* message, Arguments... arguments) {
  const SEL selector = sel_registerName(message);
  // By way of the type that stands for any function.
  const auto any = reinterpret_cast<void (*)()>(objc_msg_lookup(receiver, selector));
  const auto body = reinterpret_cast<Answer (*)(id, SEL, Arguments...)>(any);
  return body(receiver, selector, arguments...);
}

/// The class of that name, as a receiver.
inline id classNamed(const char* name) { return reinterpret_cast<id>(objc_getClass(name)); }

/// A string object, which the innermost pool owns.
inline id text(const char* utf8) {
  return send(classNamed("NSString"), "stringWithUTF8String:", utf8);
}

/// Owns what is given away while it lives.
class Pool {
 public:
  Pool() : pool_(send(classNamed("NSAutoreleasePool"), "new")) {}
  ~Pool() { send<void>(pool_, "drain"); }
  Pool(const Pool&) = delete;
  Pool& operator=(const Pool&) = delete;

 private:
  id pool_;
};

}  // namespace bench
