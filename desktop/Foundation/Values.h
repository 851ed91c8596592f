#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "desktop/Body.h"
#include "platform/Foundation/NSArray.h"
#include "plist/Value.h"

namespace desktop {

/// A handle to an object with this value: a string, number, date, data, array or dictionary.
platform::Object box(const plist::Value& value);

/// The value of such an object. Raises `NSInvalidArgumentException` for none and for objects that
/// no property list holds.
plist::Value unbox(const platform::Object& object);

/// The text of a string, valid as long as the object lives; none for any other object.
std::optional<std::string_view> textIn(const platform::Object& object);

/// The text of a string; empty for any other object.
std::string textOf(const platform::Object& object);

/// The text that a dictionary has under the key; `absent` when it has none.
std::string textAt(const plist::Dictionary& dictionary, std::string_view key,
                   std::string_view absent = {});

/// What the platform's `doubleValue` answers: a number's value, the number that a string begins
/// with, else 0. Objects that do not answer it, arrays say, count as 0.
double doubleValue(const platform::Object& object);

/// What the platform's `boolValue` answers; objects that do not answer it count as false.
bool boolValue(const platform::Object& object);

}  // namespace desktop
