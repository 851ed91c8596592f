#pragma once

#import <Foundation/Foundation.h>

#include "platform/Backend.h"

/// The device backend: the projection's bodies over the phone's own frameworks.
namespace device {

/// The framework's class behind a handle; `Native.h` lists them.
template <class Handle>
struct Native;

/// The object that a handle refers to; nil for none.
inline id object(const platform::Object& handle) {
  return (__bridge id)platform::Backend::reference(handle);
}

/// The same, as one of its class.
template <class Handle>
typename Native<Handle>::Class* native(const Handle& handle) {
  return (typename Native<Handle>::Class*)object(handle);
}

/// @name A handle to what a message answered; none for nil.
/// This is the only place where objects are retained: right under manual reference counting, where
/// the two differ, and under automatic, where the compiler knows who owns what.
/// @{
#if __has_feature(objc_arc)
template <class Handle>
Handle handle(id answered) {
  return platform::Backend::adopt<Handle>((__bridge_retained void*)answered);
}
template <class Handle>
Handle adopt(id owned) {
  return handle<Handle>(owned);
}
inline id autoreleased(const platform::Object& handle) { return object(handle); }
#else
/// For what the receiver or the autorelease pool owns.
template <class Handle>
Handle handle(id answered) {
  return platform::Backend::adopt<Handle>([answered retain]);
}
/// For what `alloc`, `new` and the copying messages give the caller to own.
template <class Handle>
Handle adopt(id owned) {
  return platform::Backend::adopt<Handle>(owned);
}
/// The object, which outlives the handle until the platform's event is over: what a method returns.
inline id autoreleased(const platform::Object& handle) {
  return [[object(handle) retain] autorelease];
}
#endif
/// @}

}  // namespace device
