#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "plist/Buffer.h"
#include "plist/Value.h"

namespace plist {

/// Makes many strings that share a few blocks of memory, which live as long as one of them.
class TextBlock {
 public:
  /// A string; none where `bytes` are no text (see plist/Text.h). Throws std::length_error beyond
  /// 256 MiB, std::bad_alloc.
  std::optional<Value> append(std::string_view bytes);

 private:
  std::optional<BufferLoan> block_;
};

/// The `size` bytes of a string from `offset` on, as a string that shares them. Both ends must lie
/// between characters.
Value part(const Value& string, std::size_t offset, std::size_t size) noexcept;

}  // namespace plist
