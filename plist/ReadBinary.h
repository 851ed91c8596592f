#pragma once

#include <string>

#include "plist/Document.h"

namespace plist {

/// Reads the binary form; `bytes` begin with its magic.
Value readBinary(std::string bytes, const Limits& limits);

}  // namespace plist
