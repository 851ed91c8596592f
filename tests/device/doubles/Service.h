#pragma once

#include <string>
#include <vector>

/// What no other backend has, and the stand-in's journal therefore does not note.
namespace doubles {

/// A request to the service that it and its files agree.
struct Synchronization {
  std::string domain;
  std::string user;
  bool isOfAnyHost;
  /// What the journal said last when it came; empty when nothing.
  std::string after;
};
extern std::vector<Synchronization> synchronizations;

/// Whether this Cephei lets the look of a bar be translucent; 2.0 does not.
extern bool cepheiHasTranslucentBars;

}  // namespace doubles
