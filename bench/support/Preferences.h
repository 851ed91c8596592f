#pragma once

#include <cstddef>

#include "plist/Value.h"

namespace bench {

/// Preferences of that many keys: the add-on's own, and beyond these as many made-up ones as it
/// takes, half of them short texts, a quarter integers and a quarter booleans.
plist::Dictionary preferencesOf(std::size_t keys);

}  // namespace bench
