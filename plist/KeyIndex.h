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

  void clear() noexcept { std::fill(slots_.begin(), slots_.end(), Slot()); }

  /// The slot of the key of that hash for which `matches(position)`, or the free slot for it.
  template <typename Matches>
  std::uint32_t& slot(std::uint64_t hash, Matches&& matches) noexcept {
    Slot& found = slots_[place(hash, matches)];
    found.tag = tagOf(hash);
    return found.content;
  }
  template <typename Matches>
  [[nodiscard]] std::uint32_t slot(std::uint64_t hash, Matches&& matches) const noexcept {
    return slots_[place(hash, matches)].content;
  }

  /// What a slot holds is the position and 1.
  static constexpr std::uint32_t kFree = 0;

 private:
  struct Slot {
    std::uint32_t content = kFree;
    std::uint32_t tag = 0;  // of the hash: few other keys have to be looked at
  };
  static std::uint32_t tagOf(std::uint64_t hash) noexcept {
    return static_cast<std::uint32_t>(hash >> 32);
  }

  template <typename Matches>
  [[nodiscard]] std::size_t place(std::uint64_t hash, Matches&& matches) const noexcept {
    const std::size_t mask = slots_.size() - 1;
    const auto isAnother = [&](const Slot& slot) {
      return slot.content != kFree && (slot.tag != tagOf(hash) || !matches(slot.content - 1));
    };
    std::size_t at = hash & mask;
    while (isAnother(slots_[at])) at = (at + 1) & mask;
    return at;
  }

  std::vector<Slot> slots_;
};

}  // namespace plist
