#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "plist/KeyIndex.h"
#include "plist/Nodes.h"

namespace plist {

/// Finds values that share their text, data or container in memory, so that they share it in a file
/// as well: a small file that stands for many values stays small when it is read, changed and
/// written.
class SharedPlaces {
 public:
  /// Whether another value may share with this one. A container that only one place holds is come
  /// by once, unless it stands in one that is shared itself, which is gone through once.
  static bool isShared(const Value& value) noexcept;

  /// Whether this is text or data that stands behind all that came before in the same buffer, so
  /// that none of those can share with it. All of a file that was written in order does, and then
  /// nothing has to be looked up.
  bool isNext(const Value& value) noexcept;

  /// Where the number of the first value that shares with this one stands, and 1; free when there
  /// is none. `objects` are those that have numbers already. Whatever is not next has to be asked
  /// for here, and then gets the next number.
  std::uint32_t& slot(const Value& value, const std::vector<const Value*>& objects);

 private:
  using Place = std::pair<const void*, std::size_t>;
  static Place placeOf(const Value& value) noexcept;
  bool isInRun(const Value& value) const noexcept;
  void fill(const std::vector<const Value*>& objects);

  const Buffer* run_ = nullptr;  // the first buffer, whose text is not in the index...
  Place last_ = {};
  bool isBroken_ = false;  // ...unless some of it came out of order
  std::size_t count_ = 0;  // what the index needs room for
  KeyIndex index_;
};

}  // namespace plist
