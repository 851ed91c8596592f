#include "settings/cli/List.h"

#include <algorithm>
#include <vector>

#include "settings/cli/Hands.h"
#include "settings/cli/Values.h"
#include "settings/cli/Words.h"

namespace settings::cli {

using nlohmann::json;

namespace {

struct Line {
  std::string page;
  std::string cells[4];
};

json nodeOf(const Row& row) {
  const Description about = describe(row.control);
  json node = {{"page", row.page},   {"key", row.key},       {"label", row.label},
               {"kind", about.kind}, {"value", about.value}, {"default", about.otherwise}};
  node.update(about.bounds);
  return node;
}

Line lineOf(const Row& row) {
  const Description about = describe(row.control);
  const std::string otherwise = visible(titled(about, about.otherwise));
  return {row.page,
          {row.key, visible(titled(about, about.value)), about.takes,
           otherwise.empty() ? "" : "default " + otherwise}};
}

/// How many letters the text has: UTF-8 bytes that go on with a letter do not count.
std::size_t width(const std::string& text) {
  return static_cast<std::size_t>(std::ranges::count_if(
      text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

/// The cells in columns, two spaces apart, without spaces at the end.
std::string aligned(const Line& line, const std::vector<Line>& all) {
  std::string text;
  for (std::size_t i = 0; i < std::size(line.cells); ++i) {
    std::size_t widest = 0;
    for (const Line& each : all) widest = std::max(widest, width(each.cells[i]));
    text += "  " + line.cells[i] + std::string(widest - width(line.cells[i]), ' ');
  }
  return text.substr(0, text.find_last_not_of(' ') + 1) + '\n';
}

std::string inWords(const std::vector<Line>& lines) {
  std::string text;
  const Line* last = nullptr;
  for (const Line& line : lines) {
    if (!last || last->page != line.page) text += (last ? "\n" : "") + line.page + '\n';
    text += aligned(line, lines);
    last = &line;
  }
  return text;
}

}  // namespace

std::string list(Hands& hands, const Request& request) {
  json nodes = json::array();
  std::vector<Line> lines;
  visitRows(hands, [&](const Row& row) {
    nodes.push_back(nodeOf(row));
    lines.push_back(lineOf(row));
    return false;
  });
  return request.json ? printed(nodes) : inWords(lines);
}

}  // namespace settings::cli
