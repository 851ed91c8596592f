#include "desktop/Foundation/Entries.h"

namespace desktop {

using plist::Dictionary;
using plist::PlainBinary;

std::optional<plist::Value> Entries::find(std::string_view key) const {
  if (file()) return file()->find(key);
  const plist::Value* found = std::get<Dictionary>(kept_).find(key);
  return found ? std::optional(*found) : std::nullopt;
}

bool Entries::holds(std::string_view key, const plist::Value& value) const {
  return file() ? file()->holds(key, value) : find(key) == value;
}

void Entries::set(std::string_view key, const plist::Value& value) {
  auto* plain = std::get_if<PlainBinary>(&kept_);
  if (!plain) return std::get<Dictionary>(kept_).set(key, value);
  if (!plain->set(key, value)) kept_ = plain->with(key, value);
}

Dictionary Entries::all() const {
  return file() ? file()->dictionary() : std::get<Dictionary>(kept_);
}

Dictionary& Entries::all() {
  if (file()) kept_ = file()->dictionary();
  return std::get<Dictionary>(kept_);
}

}  // namespace desktop
