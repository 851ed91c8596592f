#pragma once

#include <string>

#include "plist/Value.h"

namespace samples {

/// The value as one line of JSON in which each type is named and each number exact, for oracles in
/// other languages: [type, content]. Reals and dates are the hexadecimal bits of a double, text is
/// the hexadecimal digits of its UTF-16 units.
std::string describe(const plist::Value& value);

/// The same value with reals of single width in double width, which is what XML gives back.
plist::Value widened(const plist::Value& value);

}  // namespace samples
