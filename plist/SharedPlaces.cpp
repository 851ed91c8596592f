#include "plist/SharedPlaces.h"

#include <algorithm>

namespace plist {
namespace {

using Kind = Internals::Kind;

constexpr std::size_t kFewest = 16;

std::uint64_t hashOf(const void* place) noexcept {
  return keyHash(reinterpret_cast<std::uintptr_t>(place));
}

bool isTextOrData(const Value& value) noexcept {
  const Kind kind = Internals::kind(value);
  return kind >= Kind::String && kind < Kind::Array;
}

}  // namespace

bool SharedPlaces::isShared(const Value& value) noexcept {
  const Kind kind = Internals::kind(value);
  if (kind < Kind::String) return false;
  if (kind < Kind::Array) return Internals::buffer(value)->isShared();
  const Node* const node = Internals::node(value);
  return node != nullptr && node->isShared();
}

SharedPlaces::Place SharedPlaces::placeOf(const Value& value) noexcept {
  if (Internals::kind(value) >= Kind::Array) return {Internals::node(value), 0};
  const std::string_view bytes = Internals::slice(value);
  return {bytes.data(), bytes.size()};
}

bool SharedPlaces::isNew(const Value& value) {
  if (indexesText_ || !isTextOrData(value)) return false;
  const Buffer* const buffer = Internals::buffer(value);
  if (buffer != latest_) {
    latest_ = buffer;
    latestBeginnings_ = &beginnings_.try_emplace(buffer, buffer->bytes.size() + 1).first->second;
  }
  const std::ptrdiff_t offset = Internals::slice(value).data() - buffer->bytes.data();
  Beginnings::reference isBeginning = (*latestBeginnings_)[static_cast<std::size_t>(offset)];
  if (isBeginning) return false;
  isBeginning = true;
  return true;
}

void SharedPlaces::fill(const std::vector<const Value*>& objects) {
  index_ = KeyIndex::withRoomFor(std::max(2 * count_, kFewest));
  for (std::uint32_t number = 0; number < objects.size(); ++number) {
    const Value& object = *objects[number];
    if (!isShared(object) || (!indexesText_ && isTextOrData(object))) continue;
    index_.slot(hashOf(placeOf(object).first), [](std::uint32_t) { return false; }) = number + 1;
  }
}

std::uint32_t& SharedPlaces::slot(const Value& value, const std::vector<const Value*>& objects) {
  const bool isFirstText = !indexesText_ && isTextOrData(value);
  indexesText_ = indexesText_ || isFirstText;
  count_ = isFirstText ? objects.size() + 1 : count_ + 1;
  if (isFirstText || !index_.holds(count_)) fill(objects);
  return index_.slot(hashOf(placeOf(value).first), [&](std::uint32_t number) {
    const Value& other = *objects[number];
    return Internals::kind(other) == Internals::kind(value) && placeOf(other) == placeOf(value);
  });
}

}  // namespace plist
