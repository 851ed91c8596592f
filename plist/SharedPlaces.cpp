#include "plist/SharedPlaces.h"

#include <algorithm>

namespace plist {
namespace {

using Kind = Internals::Kind;

constexpr std::size_t kFewest = 16;

std::uint64_t hashOf(const void* place) noexcept {
  return keyHash(reinterpret_cast<std::uintptr_t>(place));
}

}  // namespace

bool SharedPlaces::isShared(const Value& value) noexcept {
  const Kind kind = Internals::kind(value);
  if (kind < Kind::String) return false;
  if (kind < Kind::Array) return Internals::buffer(value)->isShared();
  const Node* const node = Internals::node(value);
  return node != nullptr && node->isShared();
}

bool SharedPlaces::isInRun(const Value& value) const noexcept {
  return Internals::kind(value) < Kind::Array && Internals::buffer(value) == run_;
}

SharedPlaces::Place SharedPlaces::placeOf(const Value& value) noexcept {
  if (Internals::kind(value) >= Kind::Array) return {Internals::node(value), 0};
  const std::string_view bytes = Internals::slice(value);
  return {bytes.data(), bytes.size()};
}

bool SharedPlaces::isNext(const Value& value) noexcept {
  if (isBroken_ || Internals::kind(value) >= Kind::Array) return false;
  if (run_ == nullptr) run_ = Internals::buffer(value);
  const Place place = placeOf(value);
  if (!isInRun(value) || place <= last_) return false;
  last_ = place;
  return true;
}

void SharedPlaces::fill(const std::vector<const Value*>& objects) {
  index_ = KeyIndex::withRoomFor(std::max(2 * count_, kFewest));
  for (std::uint32_t number = 0; number < objects.size(); ++number) {
    const Value& object = *objects[number];
    if (!isShared(object) || (!isBroken_ && isInRun(object))) continue;
    index_.slot(hashOf(placeOf(object).first), [](std::uint32_t) { return false; }) = number + 1;
  }
}

std::uint32_t& SharedPlaces::slot(const Value& value, const std::vector<const Value*>& objects) {
  const bool breaks = !isBroken_ && isInRun(value);
  isBroken_ = isBroken_ || breaks;
  count_ = breaks ? objects.size() + 1 : count_ + 1;
  if (breaks || !index_.holds(count_)) fill(objects);
  return index_.slot(hashOf(placeOf(value).first), [&](std::uint32_t number) {
    const Value& other = *objects[number];
    return Internals::kind(other) == Internals::kind(value) && placeOf(other) == placeOf(value);
  });
}

}  // namespace plist
