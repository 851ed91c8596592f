#pragma once

#include <random>

#include "plist/Value.h"

namespace samples {

/// What random values may contain beyond what every reader of property lists carries exactly.
struct Variety {
  bool singleReals = true;  ///< Reals of single width, infinities, NaN and -0.0.
  bool anyDates = true;     ///< Fractions of seconds and years other than 1970 to 2037.
  bool anyText = true;      ///< Controls, carriage returns, lone surrogates.
  bool emptyKeys = true;
  bool uids = true;
  bool largeIntegers = true;  ///< Above 2^63 - 1.
};

/// A dictionary or array some levels deep of every type that the variety allows.
plist::Value randomTree(std::mt19937_64& random, const Variety& variety);

}  // namespace samples
