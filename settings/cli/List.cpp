#include "settings/cli/List.h"

#include <algorithm>
#include <vector>

#include "desktop/UIKit/ControllerState.h"
#include "prefs/Quillmere.h"
#include "settings/cli/Hands.h"
#include "settings/cli/Lotties.h"
#include "settings/cli/Values.h"
#include "settings/cli/Words.h"

namespace settings::cli {

using nlohmann::json;

namespace {

struct Line {
  std::string page;
  std::string cells[4];
};

struct Setting {
  std::string page;
  std::string key;
  std::string label;
  Description about;
};

/// All of them; that of the animations comes last, since its page is none of rows with values.
std::vector<Setting> settingsOf(Hands& hands) {
  std::vector<Setting> all;
  visitRows(hands, [&](const Row& row) {
    all.push_back({row.page, row.key, row.label, describe(row.control)});
    return false;
  });
  const Description about = describeLotties(hands);
  const std::string page = desktop::titleOf(*hands.pages().top().controller);
  all.push_back({page, quillmere::enabledLottiesKey, page, about});
  return all;
}

json nodeOf(const Setting& setting) {
  const Description& about = setting.about;
  json node = {{"page", setting.page}, {"key", setting.key},   {"label", setting.label},
               {"kind", about.kind},   {"value", about.value}, {"default", about.otherwise}};
  node.update(about.bounds);
  return node;
}

/// A list may be too long for a line: how many names it has.
std::string valueIn(const Description& about) {
  if (!about.value.is_array()) return visible(titled(about, about.value));
  return std::to_string(about.value.size()) + (about.value.size() == 1 ? " name" : " names");
}

Line lineOf(const Setting& setting) {
  const Description& about = setting.about;
  const std::string otherwise = visible(titled(about, about.otherwise));
  return {
      setting.page,
      {setting.key, valueIn(about), about.takes, otherwise.empty() ? "" : "default " + otherwise}};
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
  for (const Setting& setting : settingsOf(hands)) {
    nodes.push_back(nodeOf(setting));
    lines.push_back(lineOf(setting));
  }
  hands.tellOfUnreadable();
  return request.json ? printed(nodes) : inWords(lines);
}

}  // namespace settings::cli
