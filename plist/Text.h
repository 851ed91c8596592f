#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Text is UTF-8 in which a surrogate without its partner may stand as three bytes (WTF-8,
/// https://wtf-8.codeberg.page): just what any sequence of UTF-16 units turns into and back from.
namespace plist {

/// Whether `bytes` is text in that sense.
bool isText(std::string_view bytes) noexcept;

/// Whether every byte is below 0x80.
bool isAscii(std::string_view bytes) noexcept;

/// Whether XML 1.0 can carry this text: no controls other than tab, line feed and carriage return,
/// no lone surrogates, no U+FFFE and U+FFFF.
bool fitsXml(std::string_view text) noexcept;

/// Appends UTF-16 units, high byte first, as text; `units` has an even number of bytes.
void appendUtf16(std::string_view units, std::string& out);

/// How many UTF-16 units the text has.
std::size_t utf16Length(std::string_view text) noexcept;

/// Writes the text's units, high byte first, to `out`, which has room for them; the end of them.
char* toUtf16(std::string_view text, char* out) noexcept;

}  // namespace plist
