#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "plist/Value.h"

namespace desktop {

/// Changes of a domain that its file cannot take for now: whether to remove all that it holds, and
/// then the values to set and the keys to remove.
struct PendingChanges {
  bool cleared = false;
  plist::Dictionary set;
  plist::Dictionary removed;  ///< Only the keys count.

  bool empty() const { return !cleared && set.empty() && removed.empty(); }

  /// Remembers a later change of the same domain; none removes the key.
  void add(std::string_view key, const std::optional<plist::Value>& value);

  /// Remembers that all keys were removed.
  void clear() { *this = {true, {}, {}}; }

  void applyTo(plist::Dictionary& dictionary) const;

  /// As the root dictionary of a property list, and back. What is no such dictionary gives none.
  plist::Dictionary toDictionary() const;
  static std::optional<PendingChanges> fromDictionary(const plist::Dictionary& dictionary);
};

}  // namespace desktop
