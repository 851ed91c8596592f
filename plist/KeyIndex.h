#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace plist {

/// Hashes that differ from one process to the next, so that no file can be made whose keys all
/// fall together.
std::uint64_t keyHash(std::string_view key) noexcept;
std::uint64_t keyHash(std::uint64_t number) noexcept;

/// Positions of keys in a list that its user keeps: a hash table of linear probing, which is never
/// more than half full.
class KeyIndex {
 public:
  [[nodiscard]] bool empty() const noexcept { return slots_.empty(); }
  [[nodiscard]] bool holds(std::size_t count) const noexcept { return slots_.size() >= 2 * count; }

  /// An empty table with room for `count` keys.
  static KeyIndex withRoomFor(std::size_t count) {
    KeyIndex index;
    index.slots_.resize(std::bit_ceil(2 * count));
    return index;
  }

  void clear() noexcept { std::fill(slots_.begin(), slots_.end(), kFree); }

  /// The slot of the key of that hash for which `matches(position)`, or the free slot for it.
  template <typename Matches>
  std::uint32_t& slot(std::uint64_t hash, Matches&& matches) noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    while (slots_[at] != kFree && !matches(slots_[at] - 1)) at = (at + 1) & mask;
    return slots_[at];
  }
  template <typename Matches>
  [[nodiscard]] std::uint32_t slot(std::uint64_t hash, Matches&& matches) const noexcept {
    return const_cast<KeyIndex*>(this)->slot(hash, matches);
  }

  /// What a slot holds is the position and 1.
  static constexpr std::uint32_t kFree = 0;

 private:
  std::vector<std::uint32_t> slots_;
};

}  // namespace plist
