#include "platform/Object.h"

#include "desktop/Body.h"

namespace desktop {

std::string Body::description() const { return '<' + std::string(className()) + '>'; }

std::string description(const platform::Object& object) {
  return object ? bodyOf(object)->description() : "(null)";
}

std::string debugDescription(const platform::Object& object) {
  return object ? bodyOf(object)->debugDescription() : "nil";
}

}  // namespace desktop

namespace platform {

using desktop::bodyOf;

Object::Object(const Object& other) noexcept : reference_(other.reference_) {
  if (reference_) bodyOf(*this)->retain();
}

Object::~Object() {
  if (reference_) bodyOf(*this)->release();
}

bool Object::isEqual(const Object& other) const {
  return reference_ && other && bodyOf(*this)->isEqual(*bodyOf(other));
}

}  // namespace platform
