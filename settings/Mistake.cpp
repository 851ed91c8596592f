#include "settings/Mistake.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string_view>
#include <vector>

#include "settings/cli/SubCommand.h"
#include "settings/cli/Words.h"

namespace settings {

using cli::joined;
using cli::suggestion;

namespace {

using Names = std::vector<std::string>;

/// The parser of the sub-command that was named last; the whole program's when none was.
const CLI::App& named(const CLI::App& app) {
  const auto parsed = app.get_subcommands();
  return parsed.empty() ? app : named(*parsed.front());
}

/// Whether one of several words has to follow: "lotties" alone does nothing.
bool isBeginning(const CLI::App& app) { return app.get_require_subcommand_min() > 0; }

/// What may follow the words of that parser, "list" or "lotties".
Names followers(const CLI::App& app) {
  const std::string before = isBeginning(app) ? app.get_name() + ' ' : "";
  Names names;
  for (const cli::SubCommand& command : cli::subCommands()) {
    const std::string name = command.name;
    if (!name.starts_with(before)) continue;
    const std::string next = name.substr(before.size(), name.find(' ', before.size()));
    if (std::ranges::find(names, next) == names.end()) names.push_back(next);
  }
  return names;
}

std::string quoted(const std::string& word) { return '"' + word + '"'; }

std::string unknownOption(const std::string& word, std::span<const std::string> options) {
  const std::string name = word.substr(0, word.find('='));
  return "there is no option " + quoted(name) + suggestion(name, options, "");
}

std::string unknownWord(const CLI::App& at, bool isComplete, const std::string& word) {
  if (isComplete) return quoted(word) + " is more than " + at.get_name() + " takes";
  const Names known = followers(at);
  const std::string before = isBeginning(at) ? at.get_name() + ' ' : "";
  return "there is no sub-command " + quoted(before + word) +
         suggestion(word, known, "; there are " + joined(known));
}

/// The first option that takes one value and was given more; null when there is none.
const CLI::Option* givenTwice(const CLI::App& app) {
  const auto options = app.get_options();
  const auto found = std::ranges::find_if(options, [](const CLI::Option* option) {
    return option->get_items_expected_max() == 1 && option->count() > 1;
  });
  return found == options.end() ? nullptr : *found;
}

bool isDashed(const std::string& word) { return word.size() > 1 && word.starts_with('-'); }

}  // namespace

std::string mistakeIn(const CLI::App& app, const CLI::ParseError& error,
                      std::span<const std::string> options) {
  const CLI::App& at = named(app);
  const bool isComplete = &at != &app && !isBeginning(at);
  const Names left = app.remaining(true);
  const bool isMissing = dynamic_cast<const CLI::RequiredError*>(&error) != nullptr;
  if (isMissing && isComplete) {
    const auto dashed = std::ranges::find_if(left, &isDashed);
    if (dashed == left.end()) return error.what();
    return std::string(error.what()) + "; what begins with \"-\" stands behind --, as in -- " +
           *dashed;
  }
  if (isMissing && left.empty()) {
    return at.get_name() + " needs one of " + joined(followers(at)) + " behind it";
  }
  if (isMissing || dynamic_cast<const CLI::ExtrasError*>(&error)) {
    return isDashed(left[0]) ? unknownOption(left[0], options)
                             : unknownWord(at, isComplete, left[0]);
  }
  if (const CLI::Option* option = givenTwice(app)) return option->get_name() + " is given twice";
  return error.what();
}

}  // namespace settings
