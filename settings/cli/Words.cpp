#include "settings/cli/Words.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>
#include <vector>

#include "desktop/Letters.h"

namespace settings::cli {

namespace {

/// The longest word that is compared, in bytes, since the time grows with its square.
constexpr std::size_t longest = 256;

bool isSameLetter(char one, char other) { return desktop::lower(one) == desktop::lower(other); }

/// How many letters have to be put in, taken out or exchanged to make one word of the other, small
/// and capital letters being the same (the Levenshtein distance).
std::size_t distance(std::string_view one, std::string_view other) {
  std::vector<std::size_t> row(other.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < one.size(); ++i) {
    std::size_t diagonal = row[0]++;
    for (std::size_t j = 0; j < other.size(); ++j) {
      const std::size_t exchanged = diagonal + (isSameLetter(one[i], other[j]) ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({row[j] + 1, row[j + 1] + 1, exchanged});
    }
  }
  return row.back();
}

/// How far a known word may be from one that was meant to be it.
std::size_t tolerance(std::string_view known) { return std::max<std::size_t>(1, known.size() / 3); }

bool isControl(unsigned char code) { return code < 0x20 || code == 0x7F; }

std::string escaped(unsigned char code) {
  constexpr std::pair<unsigned char, const char*> named[] = {
      {'\t', "\\t"}, {'\n', "\\n"}, {'\r', "\\r"}};
  const auto* found = std::ranges::find(named, code, [](const auto& each) { return each.first; });
  if (found != std::end(named)) return found->second;
  constexpr std::string_view digits = "0123456789abcdef";
  return {'\\', 'x', digits[code >> 4], digits[code & 0xF]};
}

}  // namespace

bool isSameWord(std::string_view one, std::string_view other) {
  return std::ranges::equal(one, other, isSameLetter);
}

std::string suggestion(std::string_view word, std::span<const std::string> known,
                       const std::string& otherwise) {
  std::vector<std::string> nearest;
  std::size_t least = longest;
  for (const std::string& each : known) {
    if (word.size() > longest || each.size() > longest) continue;
    const std::size_t far = distance(word, each);
    if (far > tolerance(each) || far > least) continue;
    if (far < least) nearest.clear();
    least = far;
    const std::string quoted = '"' + each + '"';
    if (std::ranges::find(nearest, quoted) == nearest.end()) nearest.push_back(quoted);
  }
  return nearest.empty() ? otherwise : "; did you mean " + joined(nearest) + "?";
}

std::string visible(std::string_view text) {
  std::string shown;
  for (std::size_t i = 0; i < text.size(); ++i) {
    // Those of C1 are two bytes in UTF-8, of which the second is their code.
    const bool isC1 = text[i] == '\xC2' && i + 1 < text.size() && (text[i + 1] & 0xE0) == 0x80;
    if (isC1) ++i;
    const auto code = static_cast<unsigned char>(text[i]);
    if (isC1 || isControl(code)) {
      shown += escaped(code);
    } else {
      shown += text[i];
    }
  }
  return shown;
}

std::string joined(std::span<const std::string> texts) {
  std::string all;
  for (const std::string& text : texts) all += (all.empty() ? "" : ", ") + text;
  return all;
}

}  // namespace settings::cli
