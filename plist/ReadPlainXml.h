#pragma once

#include <optional>
#include <string_view>

#include "plist/Document.h"

namespace plist {

/// Reads XML as it is nearly always written: the usual head, elements without attributes, and text
/// in UTF-8 without markup or controls. That takes a tenth of the time that a parser of all of XML
/// takes. None for everything else, faulty or not: readXml() is to judge it. Throws std::bad_alloc.
std::optional<Value> readPlainXml(std::string_view bytes, const Limits& limits);

}  // namespace plist
