#pragma once

#include <span>
#include <string>
#include <string_view>

namespace settings::cli {

/// Whether both are one word, small and capital letters (of ASCII) being the same.
bool isSameWord(std::string_view one, std::string_view other);

/// What follows a complaint about a word that is none of `known`: `; did you mean "…"?` with those
/// that differ in the fewest letters, if these are few, else `otherwise`.
std::string suggestion(std::string_view word, std::span<const std::string> known,
                       const std::string& otherwise);

/// The text with its control characters (of ISO 6429: C0, DEL and C1) escaped as in C, so that a
/// terminal shows them and does not obey them: "\n", "\x1b". Any other is as it was, "\" as well.
std::string visible(std::string_view text);

/// The texts in one, with ", " between them.
std::string joined(std::span<const std::string> texts);

}  // namespace settings::cli
