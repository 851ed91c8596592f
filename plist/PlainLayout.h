#pragma once

#include <string_view>

#include "plist/Document.h"

namespace plist {

/// Whether the bytes are a binary file that read() takes within the limits on depth and number of
/// values, whose root is a dictionary, and in which each object stands once, right behind the one
/// before it: the root, then the elements of each container in turn, a dictionary's keys before
/// its values. So nothing is shared, lies over something else, or contains itself.
bool isLaidOutPlainly(std::string_view bytes, const Limits& limits);

}  // namespace plist
