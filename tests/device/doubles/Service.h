#pragma once

#include <string>
#include <vector>

/// What no other backend has, and the stand-in's journal therefore does not note.
namespace doubles {

/// The domains of which the service was asked to agree with its files, in order.
extern std::vector<std::string> synchronized;

/// Whether this Cephei lets the look of a bar be translucent; 2.0 does not.
extern bool cepheiHasTranslucentBars;

}  // namespace doubles
