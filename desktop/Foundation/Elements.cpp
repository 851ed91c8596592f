#include "desktop/Foundation/Elements.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "desktop/Foundation/ValueBody.h"
#include "desktop/Foundation/Values.h"
#include "plist/KeyIndex.h"

namespace desktop {

using platform::Object;

namespace {

std::ptrdiff_t distance(std::size_t index) { return static_cast<std::ptrdiff_t>(index); }

using desktop::textIn;
std::optional<std::string_view> textIn(const plist::Value& value) { return value.string(); }
const Object& objectOf(const Object& object) { return object; }
Object objectOf(const plist::Value& value) { return box(value); }

/// Whether an element is what is looked for: a text, if it is one, else any object.
template <class Element>
bool isEqual(const Element& element, const std::optional<std::string_view>& text,
             const Object& object) {
  return text ? textIn(element) == text : objectOf(element).isEqual(object);
}

/// Objects that are looked for by equality: texts at once, however many there are.
class Sought {
  // Ahead of those who call it, who have to know what `auto` is.
  auto isEqualTo(std::string_view text) const {
    return [this, text](std::uint32_t position) { return texts_[position] == text; };
  }

 public:
  explicit Sought(std::size_t count) : index_(plist::KeyIndex::withRoomFor(count)) {
    texts_.reserve(count);
  }

  template <class Element>
  void add(const Element& element) {
    const auto text = textIn(element);
    if (!text) return others_.push_back(objectOf(element));
    std::uint32_t& slot = index_.slot(plist::keyHash(*text), isEqualTo(*text));
    if (slot != plist::KeyIndex::kFree) return;
    texts_.push_back(*text);
    slot = static_cast<std::uint32_t>(texts_.size());
  }

  template <class Element>
  bool contains(const Element& element) const {
    if (const auto text = textIn(element)) {
      return index_.slot(plist::keyHash(*text), isEqualTo(*text)) != plist::KeyIndex::kFree;
    }
    return std::ranges::any_of(
        others_, [&](const Object& other) { return other.isEqual(objectOf(element)); });
  }

 private:
  plist::KeyIndex index_;  // of the texts
  std::vector<std::string_view> texts_;
  std::vector<Object> others_;
};

}  // namespace

std::vector<Object> Elements::objects() const {
  if (const auto* all = std::get_if<std::vector<Object>>(&kept_)) return *all;
  std::vector<Object> made;
  made.reserve(size());
  for (const plist::Value& value : std::get<plist::Array>(kept_)) made.push_back(box(value));
  return made;
}

plist::Array Elements::values() const {
  if (const auto* all = std::get_if<plist::Array>(&kept_)) return *all;
  plist::Array taken;
  taken.reserve(size());
  for (const Object& object : std::get<std::vector<Object>>(kept_)) taken.append(unbox(object));
  return taken;
}

const plist::Value* Elements::valueAmong(const Object& object) {
  if (!std::holds_alternative<plist::Array>(kept_)) return nullptr;
  if (const auto* body = bodyAs<ValueBody>(object)) return &body->value;
  kept_ = objects();
  return nullptr;
}

void Elements::insert(std::size_t index, const Object& object) {
  if (const plist::Value* value = valueAmong(object)) {
    return std::get<plist::Array>(kept_).insert(index, *value);
  }
  auto& all = std::get<std::vector<Object>>(kept_);
  all.insert(all.begin() + distance(index), object);
}

void Elements::replace(std::size_t index, const Object& object) {
  if (const plist::Value* value = valueAmong(object)) {
    return std::get<plist::Array>(kept_).set(index, *value);
  }
  std::get<std::vector<Object>>(kept_)[index] = object;
}

void Elements::remove(const Object& object) {
  const auto text = textIn(object);
  eraseIf([&](const auto& each) { return isEqual(each, text, object); });
}

void Elements::removeAll(Elements others) {
  Sought sought(others.size());
  std::visit(
      [&](const auto& all) {
        std::ranges::for_each(all, [&](const auto& each) { sought.add(each); });
      },
      others.kept_);
  eraseIf([&](const auto& each) { return sought.contains(each); });
}

}  // namespace desktop
