#include "plist/Nodes.h"

#include <cstddef>
#include <utility>

namespace plist {
namespace {

/// Nodes that nobody holds any more, chained through themselves: freeing never allocates.
class Doomed {
 public:
  void add(Node* node) noexcept {
    if (node == nullptr) return;
    node->nextDoomed = first_;
    first_ = node;
  }
  Node* take() noexcept {
    Node* node = first_;
    if (node != nullptr) first_ = node->nextDoomed;
    return node;
  }

 private:
  Node* first_ = nullptr;
};

/// The first of `count` positions that matches, and 1.
template <typename Matches>
std::uint32_t findFirst(std::size_t count, const Matches& matches) {
  for (std::uint32_t at = 0; at < count; ++at) {
    if (matches(at)) return at + 1;
  }
  return KeyIndex::kFree;
}

}  // namespace

void Node::release() noexcept {
  if (!drop()) return;
  Doomed doomed;
  BufferReturn buffers;
  doomed.add(this);
  while (Node* const node = doomed.take()) {
    if (node->isDictionary) {
      auto* const dictionary = static_cast<DictionaryNode*>(node);
      for (Dictionary::Entry& entry : dictionary->entries) {
        Internals::surrender(Internals::key(entry), buffers);
        doomed.add(Internals::surrender(Internals::value(entry), buffers));
      }
      delete dictionary;
    } else {
      auto* const array = static_cast<ArrayNode*>(node);
      for (Value& item : array->items) doomed.add(Internals::surrender(item, buffers));
      delete array;
    }
  }
}

std::uint32_t DictionaryNode::slot(std::string_view key) const noexcept {
  const auto matches = [&](std::uint32_t at) {
    return Internals::slice(Internals::key(entries[at])) == key;
  };
  if (!index_.empty()) return index_.slot(keyHash(key), matches);
  return findFirst(entries.size(), matches);
}

const Dictionary::Entry* DictionaryNode::find(std::string_view key) const noexcept {
  const std::uint32_t found = slot(key);
  return found == KeyIndex::kFree ? nullptr : &entries[found - 1];
}

void DictionaryNode::fill(KeyIndex& index) const noexcept {
  for (std::uint32_t at = 0; at < entries.size(); ++at) {
    index.slot(keyHash(entries[at].key()), [](std::uint32_t) { return false; }) = at + 1;
  }
}

void DictionaryNode::reindex(std::size_t count) {
  KeyIndex index = KeyIndex::withRoomFor(count);
  fill(index);
  index_ = std::move(index);
}

void DictionaryNode::reserve(std::size_t count) {
  entries.reserve(count);
  if (count > kUnindexed && !index_.holds(count)) reindex(count);
}

Value* DictionaryNode::add(Value&& key, Value&& value) {
  const std::string_view text = Internals::slice(key);
  const std::size_t count = entries.size() + 1;
  if (count > kUnindexed && !index_.holds(count)) reindex(2 * count);
  if (index_.empty()) {
    if (const std::uint32_t found = slot(text)) return &Internals::value(entries[found - 1]);
    Internals::append(entries, std::move(key), std::move(value));
    return nullptr;
  }
  std::uint32_t& place = index_.slot(keyHash(text), [&](std::uint32_t at) {
    return Internals::slice(Internals::key(entries[at])) == text;
  });
  if (place != KeyIndex::kFree) return &Internals::value(entries[place - 1]);
  Internals::append(entries, std::move(key), std::move(value));
  place = static_cast<std::uint32_t>(count);
  return nullptr;
}

void DictionaryNode::dropRepeated() {
  const std::size_t count = entries.size();
  const bool indexed = count > kUnindexed;
  if (indexed) index_ = KeyIndex::withRoomFor(count);
  std::size_t kept = 0;
  for (std::size_t at = 0; at < count; ++at) {
    const std::string_view text = Internals::slice(Internals::key(entries[at]));
    const auto matches = [&](std::size_t earlier) {
      return Internals::slice(Internals::key(entries[earlier])) == text;
    };
    if (indexed) {
      std::uint32_t& place = index_.slot(keyHash(text), matches);
      if (place != KeyIndex::kFree) continue;
      place = static_cast<std::uint32_t>(kept + 1);
    } else if (findFirst(kept, matches) != KeyIndex::kFree) {
      continue;
    }
    if (kept != at) entries[kept] = std::move(entries[at]);
    ++kept;
  }
  entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(kept), entries.end());
}

void DictionaryNode::erase(std::size_t position) noexcept {
  entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(position));
  if (!index_.empty()) {
    index_.clear();
    fill(index_);
  }
}

}  // namespace plist
