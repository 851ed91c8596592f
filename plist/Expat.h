#pragma once

#include <cstddef>
#include <expat.h>
#include <memory>

namespace plist {

/// Expat keeps a tag or a comment until it is whole, and looks at it anew with each piece of input.
/// One that needs more than this is refused, so that an endless one costs neither memory nor time.
inline constexpr std::size_t kExpatBytes = std::size_t{8} * 1024 * 1024;

/// Expat over the C++ allocator and within kExpatBytes; one at a time in a thread.
class ExpatParser {
 public:
  /// `encoding` overrides what the document declares. Throws std::bad_alloc.
  explicit ExpatParser(const char* encoding);
  ExpatParser(const ExpatParser&) = delete;
  ExpatParser& operator=(const ExpatParser&) = delete;
  ~ExpatParser() { XML_ParserFree(parser_); }

  [[nodiscard]] XML_Parser get() const noexcept { return parser_; }
  /// Whether memory was refused for the bound, not because there was none.
  [[nodiscard]] static bool wentBeyondBound() noexcept;

 private:
  XML_Parser parser_;
};

}  // namespace plist
