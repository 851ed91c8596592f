#include "platform/Foundation/NSPredicate.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "desktop/Foundation/PredicateBody.h"
#include "desktop/Foundation/Values.h"
#include "desktop/Letters.h"
#include "desktop/Message.h"

namespace desktop {

namespace {

constexpr std::string_view spaces = " \t\r\n";

/// What stands for which character behind a backslash.
constexpr std::array<std::pair<char, char>, 6> escapes = {{
    {'\\', '\\'},
    {'\'', '\''},
    {'"', '"'},
    {'n', '\n'},
    {'r', '\r'},
    {'t', '\t'},
}};

/// Reads a predicate from the front to the back; each part answers whether it was there.
class Parser {
 public:
  explicit Parser(std::string_view format) : rest_(format) {}

  void skipSpaces() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(spaces), rest_.size()));
  }

  bool takeKeyword(std::string_view keyword) {
    if (!std::ranges::equal(rest_.substr(0, keyword.size()), keyword, {}, &lower)) return false;
    rest_.remove_prefix(keyword.size());
    return true;
  }

  bool takeSpace() {
    const std::size_t before = rest_.size();
    skipSpaces();
    return rest_.size() < before;
  }

  /// A text in single or double quotes.
  std::optional<std::string> takeText() {
    const char quote = takeLetter();
    if (quote != '\'' && quote != '"') return std::nullopt;
    std::string text;
    while (!rest_.empty()) {
      const char letter = takeLetter();
      if (letter == quote) return text;
      const auto meant = letter == '\\' ? takeEscape() : letter;
      if (!meant) return std::nullopt;
      text += *meant;
    }
    return std::nullopt;
  }

  bool atEnd() const { return rest_.empty(); }

 private:
  /// NUL at the end.
  char takeLetter() {
    if (rest_.empty()) return '\0';
    const char letter = rest_.front();
    rest_.remove_prefix(1);
    return letter;
  }

  std::optional<char> takeEscape() {
    const auto* escape = std::ranges::find(escapes, takeLetter(), &std::pair<char, char>::first);
    return escape == escapes.end() ? std::nullopt : std::optional(escape->second);
  }

  std::string_view rest_;
};

std::optional<std::string> endingIn(std::string_view format) {
  Parser parser(format);
  parser.skipSpaces();
  if (!parser.takeKeyword("self") || !parser.takeSpace()) return std::nullopt;
  if (!parser.takeKeyword("endswith")) return std::nullopt;
  parser.skipSpaces();
  const auto text = parser.takeText();
  parser.skipSpaces();
  return parser.atEnd() ? text : std::nullopt;
}

}  // namespace

bool PredicateBody::isTrueOf(const platform::Object& object) const {
  if (const auto text = textIn(object)) return text->ends_with(ending);
  throw invalidArgument(desktop::debugDescription(object) + " is no string: it has no end");
}

bool PredicateBody::isTrueOf(const plist::Value& value) const {
  const auto text = value.string();
  return text ? text->ends_with(ending) : isTrueOf(box(value));
}

}  // namespace desktop

namespace platform {

NSPredicate NSPredicate::predicateWithFormat(const NSString& format) {
  return desktop::sendClass("NSPredicate", "predicateWithFormat:", {format}, [&] {
    auto ending = desktop::endingIn(format.UTF8String());
    if (!ending) {
      throw desktop::invalidArgument("Unable to parse the format string " +
                                     desktop::debugDescription(format));
    }
    return desktop::make<NSPredicate, desktop::PredicateBody>(*std::move(ending));
  });
}

}  // namespace platform
