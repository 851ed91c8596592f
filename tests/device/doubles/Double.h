#pragma once

#import <Foundation/Foundation.h>
#include <memory>

#include "platform/Object.h"

/// Doubles of the phone's frameworks: real Objective-C classes that pass each message on to the
/// stand-in phone, which does it and notes it in its journal. So the device backend is asked of in
/// the same words as the desktop's.
///
/// The stand-in's projection is compiled a second time here, with its namespace renamed by a macro:
/// in this folder, `platform` is the stand-in's, and the device backend's own is out of sight.
namespace doubles {

/// Lets `object` stand for what the stand-in's handle refers to. Until `forget`.
void bind(id object, const platform::Object& handle);
void forget(id object);

/// The stand-in's object that this one stands for: its own, or for a value of Foundation's (text, a
/// number, data, a list, a class) an equal one. None for nil.
platform::Object handle(id object);
template <class Handle>
Handle handle(id object) {
  return handle(object).as<Handle>();
}

/// The object that stands for this one of the stand-in's, autoreleased; always the same one as long
/// as it lives. Nil for none.
id object(const platform::Object& handle);

/// A block that is kept as long as a C++ object lives.
std::shared_ptr<void> keep(id block);

/// How many doubles live.
std::size_t count();

/// `self`, which stands for `made` from now on; what an `init` returns. Nil, as when `init`
/// refuses, for none.
id initialised(id self, const platform::Object& made);

}  // namespace doubles
