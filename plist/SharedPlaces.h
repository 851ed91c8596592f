#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
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

  /// Whether this is text or data that begins where none before it began, so that none of those
  /// can share with it. As long as all of a file does, which is as good as always, nothing has to
  /// be looked up.
  bool isNew(const Value& value);

  /// Where the number of the first value that shares with this one stands, and 1; free when there
  /// is none. `objects` are those that have numbers already. Whatever is not new has to be asked
  /// for here, and then gets the next number.
  std::uint32_t& slot(const Value& value, const std::vector<const Value*>& objects);

 private:
  using Place = std::pair<const void*, std::size_t>;
  static Place placeOf(const Value& value) noexcept;
  void fill(const std::vector<const Value*>& objects);

  /// For each byte of a buffer whether some text or data begins there.
  using Beginnings = std::vector<bool>;
  std::unordered_map<const Buffer*, Beginnings> beginnings_;
  const Buffer* latest_ = nullptr;          // the buffer that was looked into last,
  Beginnings* latestBeginnings_ = nullptr;  // and where what begins in it
  bool indexesText_ = false;                // since some of it was shared
  std::size_t count_ = 0;                   // what the index needs room for
  KeyIndex index_;
};

}  // namespace plist
