#pragma once

#include <string_view>

#include "plist/Document.h"

namespace plist {

/// Reads XML in UTF-8 with or without a byte-order mark, or in UTF-16 with one.
Value readXml(std::string_view bytes, const Limits& limits);

}  // namespace plist
