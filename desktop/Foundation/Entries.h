#pragma once

#include <optional>
#include <string_view>
#include <variant>

#include "plist/PlainBinary.h"
#include "plist/Value.h"

namespace desktop {

/// The values of a dictionary by key. One that comes from a plainly laid out file is kept as the
/// file's bytes as long as single keys are all that is asked for: who changes one of many settings
/// need not read and write the others.
class Entries {
 public:
  Entries() = default;
  explicit Entries(plist::Dictionary all) : kept_(std::move(all)) {}
  explicit Entries(plist::PlainBinary file) : kept_(std::move(file)) {}

  std::optional<plist::Value> find(std::string_view key) const;
  /// Whether the key has exactly that value.
  bool holds(std::string_view key, const plist::Value& value) const;
  void set(std::string_view key, const plist::Value& value);

  /// All of them.
  plist::Dictionary all() const;

  /// The same, kept as such from now on.
  plist::Dictionary& all();

  /// The file that they are kept as; none when they are not.
  const plist::PlainBinary* file() const { return std::get_if<plist::PlainBinary>(&kept_); }

 private:
  std::variant<plist::Dictionary, plist::PlainBinary> kept_;
};

}  // namespace desktop
