#include "desktop/Foundation/TextSet.h"

#include <bit>

#include "plist/KeyIndex.h"

namespace desktop {

namespace {

std::uint32_t tagIn(std::uint64_t hash) { return static_cast<std::uint32_t>(hash >> 32); }

}  // namespace

TextSet::TextSet(std::size_t count) : slots_(std::bit_ceil(2 * count + 1)) {}

const TextSet::Slot& TextSet::find(std::string_view text, std::uint64_t hash) const {
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
    const Slot& slot = slots_[at];
    if (!slot.start) return slot;
    if (slot.tag == tagIn(hash) && std::string_view(slot.start, slot.size) == text) return slot;
  }
}

void TextSet::add(std::string_view text) {
  const std::uint64_t hash = plist::keyHash(text);
  auto& slot = const_cast<Slot&>(find(text, hash));
  slot = {text.data(), static_cast<std::uint32_t>(text.size()), tagIn(hash)};
}

bool TextSet::contains(std::string_view text) const {
  return find(text, plist::keyHash(text)).start != nullptr;
}

}  // namespace desktop
