#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

#include "plist/Value.h"

namespace plist {

/// How a property list stands in a file.
enum class Form { Xml, Binary };

/// A property list as it came from a file.
struct Document {
  Value root;
  Form form;
};

/// Bounds that keep a hostile file from costing more than a large honest one: with these, what is
/// read, changed and written takes less than 64 MiB of memory.
struct Limits {
  /// Offsets of 32 bits reach all of it, even after UTF-16 has become longer UTF-8.
  static constexpr std::uint32_t kMostBytes = 1U << 30;

  std::uint32_t bytes = 8 * 1024 * 1024;  ///< Of a file; kMostBytes at most.
  std::uint32_t depth = 512;              ///< Containers inside one another.
  std::uint32_t nodes = 250'000;  ///< Values and keys, a shared one counted wherever it shows.
  std::uint64_t text = 16 * 1024 * 1024;  ///< Bytes of text and data, counted likewise, as UTF-8.
};

/// The bytes are not a property list, or go beyond the limits.
class Unreadable : public std::runtime_error {
 public:
  explicit Unreadable(const std::string& reason, std::optional<std::size_t> offset = {});

  /// Where in the file, in bytes; none where no one place is to blame.
  [[nodiscard]] std::optional<std::size_t> offset() const noexcept { return offset_; }

 private:
  std::optional<std::size_t> offset_;
};

/// Reads a property list in either form, told apart by content: binary of version 00 (after
/// CFBinaryPList.c of CoreFoundation), or XML after the DTD -//Apple//DTD PLIST 1.0//EN in UTF-8
/// or, with a byte-order mark, UTF-16. It reads all of it or nothing: throws Unreadable, or
/// std::bad_alloc. Where one dictionary repeats a key the platform decides: the last value counts
/// in XML, the first in binary. A dictionary whose only key is CF$UID stays a dictionary.
Document read(std::string bytes, const Limits& limits = {});

/// The value in binary form, version 00; keys keep their order, and text, data and containers that
/// values share in memory they share in the file. Throws std::bad_alloc.
std::string writeBinary(const Value& value);

/// The value as XML, none when XML cannot carry some of it exactly: a date with a fraction, not
/// finite or -0.0; a UID; text that XML 1.0 has no form for; a NaN other than the plain quiet one.
/// A real of single width is written as the same number, which reads back in double width. None
/// also where it takes more than `most` bytes, without making much more of them.
std::optional<std::string> writeXml(const Value& value, std::size_t most = SIZE_MAX);

/// A file that read() takes within the limits: in the wanted form; in binary also where XML cannot
/// carry the value or is too large. None where the value goes beyond the limits in either form.
/// Throws std::bad_alloc.
std::optional<std::string> write(const Value& value, Form wanted, const Limits& limits = {});

}  // namespace plist
