#include <algorithm>
#include <iterator>
#include <span>
#include <string_view>
#include <unordered_set>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Foundation/Values.h"
#include "desktop/Message.h"
#include "platform/Foundation/NSArray.h"

namespace platform {

using desktop::ArrayBody;
using desktop::send;
using Mutable = ArrayBody::Mutable;

namespace {

/// Objects that are looked for by equality: strings at once, however many there are.
class Sought {
 public:
  explicit Sought(std::vector<Object> objects) : objects_(std::move(objects)) {
    // What is no string goes to the front; the rest stays where it is, as the texts lie in it.
    const auto strings = std::partition(objects_.begin(), objects_.end(),
                                        [](const Object& each) { return !desktop::textIn(each); });
    std::transform(strings, objects_.end(), std::inserter(texts_, texts_.end()),
                   [](const Object& each) { return *desktop::textIn(each); });
    others_ = {objects_.begin(), strings};
  }

  bool contains(const Object& object) const {
    if (const auto text = desktop::textIn(object)) return texts_.contains(*text);
    return std::ranges::any_of(others_, [&](const Object& each) { return each.isEqual(object); });
  }

 private:
  std::vector<Object> objects_;
  std::span<const Object> others_;
  std::unordered_set<std::string_view> texts_;
};

void removeAll(ArrayBody& array, std::vector<Object> objects) {
  const Sought sought(std::move(objects));
  std::erase_if(array.objects, [&](const Object& each) { return sought.contains(each); });
}

}  // namespace

NSMutableArray NSMutableArray::array() {
  return desktop::sendClass("NSMutableArray", "array", {}, [] {
    return desktop::make<NSMutableArray, ArrayBody>(std::vector<Object>(), Mutable::Yes);
  });
}

NSMutableArray NSMutableArray::initWithArray(const NSArray& array) {
  return desktop::sendClass("NSMutableArray", "initWithArray:", {array}, [&] {
    return desktop::make<NSMutableArray, ArrayBody>(desktop::objectsIn(array), Mutable::Yes);
  });
}

void NSMutableArray::addObject(const Object& object) {
  send<ArrayBody>(*this, "addObject:", {object}, [&](ArrayBody& self) {
    desktop::requireObject(object);
    self.objects.push_back(object);
  });
}

void NSMutableArray::insertObject(const Object& object, std::size_t index) {
  send<ArrayBody>(
      *this, "insertObject:atIndex:", {object, static_cast<double>(index)}, [&](ArrayBody& self) {
        desktop::requireObject(object);
        desktop::requireIndex(index, self.objects.size() + 1);
        self.objects.insert(self.objects.begin() + static_cast<std::ptrdiff_t>(index), object);
      });
}

void NSMutableArray::replaceObjectAtIndex(std::size_t index, const Object& object) {
  send<ArrayBody>(*this, "replaceObjectAtIndex:withObject:", {static_cast<double>(index), object},
                  [&](ArrayBody& self) {
                    desktop::requireObject(object);
                    desktop::requireIndex(index, self.objects.size());
                    self.objects[index] = object;
                  });
}

void NSMutableArray::removeObject(const Object& object) {
  send<ArrayBody>(*this, "removeObject:", {object}, [&](ArrayBody& self) {
    desktop::requireObject(object);
    removeAll(self, {object});
  });
}

void NSMutableArray::removeObjectsInArray(const NSArray& objects) {
  send<ArrayBody>(*this, "removeObjectsInArray:", {objects},
                  [&](ArrayBody& self) { removeAll(self, desktop::objectsIn(objects)); });
}

NSArray NSMutableArray::copy() const {
  return send<ArrayBody>(*this, "copy", {}, [](ArrayBody& self) {
    return desktop::make<NSArray, ArrayBody>(self.objects, Mutable::No);
  });
}

}  // namespace platform
