#include "bench/runner/Table.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace bench {

namespace {

struct Column {
  std::string_view title;
  std::size_t width;
  bool isNumber = false;
};

constexpr std::array columns{
    Column{"what", 20},         Column{"size", 6, true},  Column{"contestant", 24},
    Column{"median", 11, true}, Column{"ratio", 8, true}, Column{"lowest – highest", 17, true},
    Column{"must", 14},         Column{"holds", 5},
};

struct Scale {
  double from;
  std::string_view unit;
};

std::string scaled(double number, std::span<const Scale> scales) {
  const auto fits = std::ranges::find_if(scales, [=](Scale one) { return number >= one.from; });
  const Scale scale = fits == scales.end() ? scales.back() : *fits;
  return rounded(number / scale.from) + ' ' + std::string(scale.unit);
}

std::string amount(const Result& result) {
  static constexpr std::array times{Scale{1e9, "s"}, Scale{1e6, "ms"}, Scale{1e3, "µs"},
                                    Scale{1, "ns"}};
  static constexpr std::array sizes{Scale{1e6, "MB"}, Scale{1e3, "kB"}, Scale{1, "B"}};
  if (result.unit == "absent") return "not here";
  if (result.unit == "ns") return scaled(result.median, times);
  if (result.unit == "bytes") return scaled(result.median, sizes);
  return rounded(result.median) + ' ' + result.unit;
}

// Letters, not bytes.
std::size_t widthOf(std::string_view text) {
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char byte) { return (byte & 0xC0) != 0x80; }));
}

std::string cell(const std::string& text, const Column& column) {
  const std::size_t width = widthOf(text);
  const std::string space(column.width > width ? column.width - width : 0, ' ');
  return column.isNumber ? space + text : text + space;
}

std::string line(const std::array<std::string, columns.size()>& texts) {
  std::string all = "|";
  for (std::size_t i = 0; i < columns.size(); ++i) all += ' ' + cell(texts[i], columns[i]) + " |";
  return all;
}

}  // namespace

std::string tableHead() {
  std::array<std::string, columns.size()> titles;
  std::ranges::transform(columns, titles.begin(),
                         [](const Column& column) { return std::string(column.title); });
  std::string rule = "|";
  for (const Column& column : columns) {
    rule += ' ' + std::string(column.width - 1, '-') + (column.isNumber ? ":" : "-") + " |";
  }
  return line(titles) + '\n' + rule;
}

std::string tableLine(const Result& result) {
  return line({result.race, result.size ? std::to_string(result.size) : "", result.contestant,
               amount(result), result.ratio ? rounded(*result.ratio) : "",
               result.lowest && result.highest
                   ? rounded(*result.lowest) + " – " + rounded(*result.highest)
                   : "",
               result.must, result.holds ? (*result.holds ? "yes" : "NO") : ""});
}

}  // namespace bench
