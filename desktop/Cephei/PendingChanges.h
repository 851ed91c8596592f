#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "plist/Value.h"

namespace desktop {

/// Changes of a domain that its file cannot take for now: the values to set, and the keys to
/// remove.
struct PendingChanges {
  plist::Dictionary set;
  plist::Dictionary removed;  ///< Only the keys count.

  bool empty() const { return set.empty() && removed.empty(); }

  /// Remembers a later change of the same domain; none removes the key.
  void add(std::string_view key, const std::optional<plist::Value>& value);

  void applyTo(plist::Dictionary& dictionary) const;

  /// As the root dictionary of a property list, and back. What is no such dictionary gives none.
  plist::Dictionary toDictionary() const;
  static std::optional<PendingChanges> fromDictionary(const plist::Dictionary& dictionary);
};

}  // namespace desktop
