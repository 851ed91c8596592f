#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "plist/Document.h"
#include "plist/Value.h"

namespace plist {

/// A dictionary as it stands in a binary file that is laid out plainly: each value once, those of a
/// container after one another, as writeBinary() does where nothing is shared. Single keys of such
/// a file are looked up and changed in its bytes, at a fraction of what it takes to read and write
/// all of them; for whatever is more than that it has to be read.
class PlainBinary {
 public:
  /// The dictionary in `bytes`, which is taken from then. None, and nothing taken, where the file
  /// is another or laid out otherwise, or where read() might refuse it: the whole file is looked
  /// through.
  static std::optional<PlainBinary> in(std::string& bytes, const Limits& limits = {});

  /// The value of `key`; none if there is no such key. Throws std::bad_alloc.
  [[nodiscard]] std::optional<Value> find(std::string_view key) const;

  /// Whether the key has exactly that value; a list of texts is compared where it stands.
  [[nodiscard]] bool holds(std::string_view key, const Value& value) const;

  /// Gives the key the value in place of the one that it has. False, and nothing changed, where
  /// that takes more than other bytes for that one value: for a new key, an array, a dictionary,
  /// or where the file would outgrow its offsets or the limits. Throws std::bad_alloc.
  [[nodiscard]] bool set(std::string_view key, const Value& value);

  /// All of it. Throws std::bad_alloc.
  [[nodiscard]] Dictionary dictionary() const;

  /// All of it with another value for the key, whose own is not read. Throws std::bad_alloc.
  [[nodiscard]] Dictionary with(std::string_view key, Value value) const;

  /// The file, which read() reads.
  [[nodiscard]] const std::string& bytes() const noexcept { return bytes_; }

 private:
  PlainBinary(std::string bytes, const Limits& limits) noexcept
      : bytes_(std::move(bytes)), limits_(limits) {}

  /// Writes another object in the place of the one of that number; false where set() cannot.
  bool replace(std::size_t offset, std::size_t size, std::string_view written,
               std::uint64_t number);

  std::string bytes_;
  Limits limits_;
};

}  // namespace plist
