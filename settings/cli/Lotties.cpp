#include "settings/cli/Lotties.h"

#include <algorithm>
#include <charconv>

#include "desktop/Foundation/ArrayBody.h"
#include "desktop/Foundation/Values.h"
#include "desktop/UIKit/ControllerState.h"
#include "settings/Screen.h"
#include "settings/cli/Hands.h"
#include "settings/cli/Values.h"
#include "settings/cli/Words.h"

namespace settings::cli {

using desktop::TableBody;
using platform::NSIndexPath;

namespace {

constexpr const char* listAction = "lottiesList";

/// The table's sections.
constexpr std::size_t enabledSection = 0;
constexpr std::size_t disabledSection = 1;

TableBody& openList(Hands& hands) {
  hands.tapRow(listAction);
  TableBody* table = Screen(hands.board()).table();
  if (!table || table->sections().size() <= disabledSection) {
    throw std::runtime_error("the list of animations does not open");
  }
  return *table;
}

std::string nameAt(TableBody& table, const NSIndexPath& path) {
  const auto* cell = desktop::bodyAs<desktop::TableCellBody>(table.cell(path));
  if (!cell) return "";
  return desktop::textOf(desktop::bodyAs<desktop::LabelBody>(cell->textLabel)->text);
}

std::vector<std::string> namesIn(TableBody& table, std::size_t section) {
  std::vector<std::string> names;
  for (std::size_t row = 0; row < table.sections()[section].rows; ++row) {
    names.push_back(nameAt(table, {section, row}));
  }
  return names;
}

/// Where the animation stands in that section. Throws `UsageError` when it does not.
NSIndexPath find(TableBody& table, std::size_t section, const std::string& name) {
  const std::size_t other = section == enabledSection ? disabledSection : enabledSection;
  const auto names = namesIn(table, section);
  const auto found = std::ranges::find(names, name);
  if (found != names.end()) return {section, static_cast<std::size_t>(found - names.begin())};
  auto all = namesIn(table, other);
  if (std::ranges::find(all, name) != all.end()) {
    throw UsageError('"' + name + "\" is " +
                     (other == enabledSection ? "enabled already" : "not enabled"));
  }
  all.insert(all.end(), names.begin(), names.end());
  throw UsageError("there is no animation \"" + name + '"' +
                   suggestion(name, all, " (lotties list tells the names)"));
}

/// A place among so many, counted from 1, as a row. Throws `UsageError`.
std::size_t rowAt(const std::string& position, std::size_t count) {
  std::size_t number = 0;
  const char* const end = position.data() + position.size();
  const auto [stop, error] = std::from_chars(position.data(), end, number);
  if (error != std::errc() || stop != end || number < 1 || number > count) {
    throw UsageError("POSITION takes 1 to " + std::to_string(count) + ", and not \"" + position +
                     '"');
  }
  return number - 1;
}

std::string heading(TableBody& table, std::size_t section) {
  std::string text = table.sections()[section].title + '\n';
  for (const std::string& name : namesIn(table, section)) text += "  " + visible(name) + '\n';
  return text;
}

std::string inJson(TableBody& table) {
  return printed(
      {{"enabled", namesIn(table, enabledSection)}, {"disabled", namesIn(table, disabledSection)}});
}

/// What is enabled while nothing is stored, as the list on top knows it.
nlohmann::json defaults(Hands& hands) {
  const platform::Object names =
      desktop::perform(*hands.pages().top().controller, "defaultViews", {});
  nlohmann::json all = nlohmann::json::array();
  const auto* list = desktop::bodyAs<desktop::ArrayBody>(names);
  for (std::size_t i = 0; list && i < list->elements.size(); ++i) {
    all.push_back(desktop::textOf(list->elements[i]));
  }
  return all;
}

}  // namespace

Description describeLotties(Hands& hands) {
  TableBody& table = openList(hands);
  return {"list", namesIn(table, enabledSection), defaults(hands), "lotties enable, disable, move"};
}

std::string listLotties(Hands& hands, const Request& request) {
  TableBody& table = openList(hands);
  hands.tellOfUnreadable();
  if (request.json) return inJson(table);
  return heading(table, enabledSection) + '\n' + heading(table, disabledSection);
}

std::string enableLottie(Hands& hands, const Request& request) {
  TableBody& table = openList(hands);
  const NSIndexPath path = find(table, disabledSection, request.arguments[0]);
  hands.change([&] { table.tapControl(path); });
  return request.json ? inJson(table) : "";
}

std::string disableLottie(Hands& hands, const Request& request) {
  TableBody& table = openList(hands);
  const NSIndexPath path = find(table, enabledSection, request.arguments[0]);
  hands.change([&] {
    table.tapControl(path);
    table.confirm();
  });
  return request.json ? inJson(table) : "";
}

std::string moveLottie(Hands& hands, const Request& request) {
  TableBody& table = openList(hands);
  const NSIndexPath path = find(table, enabledSection, request.arguments[0]);
  const std::size_t count = table.sections()[enabledSection].rows;
  const std::size_t row = rowAt(request.arguments[1], count);
  hands.change([&] { table.drag(path, {enabledSection, row}); });
  return request.json ? inJson(table) : "";
}

}  // namespace settings::cli
