#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace desktop {

/// Texts to be looked for among many others. They are not copied, so they must live as long.
class TextSet {
 public:
  /// An empty set with room for `count` texts.
  explicit TextSet(std::size_t count);

  /// Adds a text; not more than there is room for.
  void add(std::string_view text);

  bool contains(std::string_view text) const;

 private:
  /// A place in a hash table of linear probing, with a part of the hash, so that hardly any other
  /// text is ever compared.
  struct Slot {
    const char* start = nullptr;
    std::uint32_t size = 0;
    std::uint32_t tag = 0;
  };

  /// The slot of that text, or the free one for it.
  const Slot& find(std::string_view text, std::uint64_t hash) const;

  std::vector<Slot> slots_;  // a power of two, never more than half of them taken
};

}  // namespace desktop
