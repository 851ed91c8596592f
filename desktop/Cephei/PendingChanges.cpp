#include "desktop/Cephei/PendingChanges.h"

namespace desktop {

void PendingChanges::add(std::string_view key, const std::optional<plist::Value>& value) {
  if (value) {
    set.set(key, *value);
    removed.erase(key);
  } else {
    removed.set(key, plist::Value(true));
    set.erase(key);
  }
}

void PendingChanges::applyTo(plist::Dictionary& dictionary) const {
  if (cleared) dictionary = {};
  for (const auto& entry : removed) dictionary.erase(entry.key());
  for (const auto& entry : set) dictionary.set(entry.key(), entry.value());
}

plist::Dictionary PendingChanges::toDictionary() const {
  plist::Dictionary dictionary;
  dictionary.set("cleared", plist::Value(cleared));
  dictionary.set("set", plist::Value(set));
  dictionary.set("removed", plist::Value(removed));
  return dictionary;
}

std::optional<PendingChanges> PendingChanges::fromDictionary(const plist::Dictionary& dictionary) {
  const plist::Value* set = dictionary.find("set");
  const plist::Value* removed = dictionary.find("removed");
  if (!set || !set->dictionary() || !removed || !removed->dictionary()) return std::nullopt;
  // Earlier versions, which knew no clearing, wrote none.
  const plist::Value* cleared = dictionary.find("cleared");
  if (cleared && !cleared->boolean()) return std::nullopt;
  return PendingChanges{cleared && *cleared->boolean(), *set->dictionary(), *removed->dictionary()};
}

}  // namespace desktop
