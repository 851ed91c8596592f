#include "settings/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <iostream>
#include <span>
#include <string>
#include <string_view>

#include "desktop/Identity.h"
#include "settings/Mistake.h"
#include "settings/cli/Words.h"

namespace settings {

using cli::Flag;
using cli::SubCommand;

namespace {

/// What mistakes and the example name the program by: as its users start it.
constexpr const char* programName = "./run";

// An empty value, of an unset variable most likely, would otherwise count as none.
CLI::Validator something() {
  return {[](const std::string& value) { return value.empty() ? "a value is missing" : ""; }, ""};
}

CLI::Validator version() {
  return {[](const std::string& value) {
            return desktop::parseVersion(value) ? ""
                                                : "\"" + value + "\" is no version, such as 14.3";
          },
          ""};
}

CLI::Validator port() {
  return {[](const std::string& value) {
            std::uint16_t number = 0;
            const char* const end = value.data() + value.size();
            const auto [stop, error] = std::from_chars(value.data(), end, number);
            return error == std::errc() && stop == end
                       ? ""
                       : "takes 0 to 65535, and not \"" + value + '"';
          },
          ""};
}

// Its description would stand behind the value in the help.
CLI::Validator scale() { return CLI::IsMember({"1", "2", "3"}).description(""); }

/// The words of a command line, without the program's name.
class Words {
 public:
  Words(int count, const char* const* words) : words_(words + 1, words + std::max(count, 1)) {}

  /// Whether the parser has to know of an option or sub-command: one of the words is its name, or
  /// asks for help, which tells all. Each takes longer to tell a parser of than to look for here.
  bool name(std::string_view name) const {
    return std::ranges::any_of(words_, [&](std::string_view word) {
      return word.substr(0, word.find('=')) == name || asksForHelp(word);
    });
  }

 private:
  static bool asksForHelp(std::string_view word) {
    // "-h" may also stand among other letters.
    return word.starts_with("--help") || (word.starts_with('-') && !word.starts_with("--"));
  }

  std::span<const char* const> words_;
};

template <auto part>
CLI::Option* addValue(CLI::App& app, const char* name, Options& options) {
  return app.add_option(name, options.*part);
}

CLI::Option* addRoot(CLI::App& app, const char* name, Options& options) {
  return app.add_option_function<std::string>(
      name, [&](const std::string& folder) { options.root = folder; });
}

CLI::Option* addNoOpen(CLI::App& app, const char* name, Options& options) {
  return app.add_flag_callback(name, [&] { options.open = false; });
}

/// An option that the parser can be told of.
struct Known {
  const char* name;
  /// What stands for its value in the help; null when it takes none.
  const char* value;
  const char* meaning;
  CLI::Option* (*add)(CLI::App& app, const char* name, Options& options);
  /// What its value must be; null when anything will do.
  CLI::Validator (*check)() = nullptr;
};

constexpr Known everyOption[] = {
    {"--root", "DIR",
     "The folder that stands in for the phone's file system\n"
     "(default: quillmere/phone in your data folder)",
     &addRoot, &something},
    {"--screen-scale", "1|2|3", "How many pixels the phone's screen has to a point (default: 3)",
     &addValue<&Options::screenScale>, &scale},
    {"--ios-version", "VERSION",
     "The version of iOS that the phone says it has, such as 14.3\n"
     "(default: as its SystemVersion.plist has it). The build that stands\n"
     "there is of that version: for another one, tell --ios-build as well",
     &addValue<&Options::iosVersion>, &version},
    {"--ios-build", "BUILD", "The build of it, such as 18C66", &addValue<&Options::iosBuild>,
     &something},
    {"--product-type", "MODEL", "The model that the phone says it is, such as iPhone12,1",
     &addValue<&Options::productType>, &something},
    {"--respring-command", "COMMAND", "Run this by sh when the phone resprings",
     &addValue<&Options::respringCommand>},
    {"--notify-command", "COMMAND", "Run this by sh for every Darwin notification; its name is $1",
     &addValue<&Options::notifyCommand>},
    {"--mail-command", "COMMAND",
     "Run this by sh for every mail sent; the message is its standard input",
     &addValue<&Options::mailCommand>},
    {"--port", "N", "The port to listen on; 0, the default, takes a free one",
     &addValue<&Options::port>, &port},
    {"--no-open", nullptr, "Do not open a browser", &addNoOpen},
};

void add(CLI::App& app, const Known& known, Options& options) {
  CLI::Option& option = *known.add(app, known.name, options)->description(known.meaning);
  if (known.value) option.type_name(known.value);
  if (known.check) option.check(known.check());
}

CLI::App* addGroup(CLI::App& app, const std::string& name) {
  CLI::App* group =
      app.add_subcommand(name, "The animations: which are enabled, and in which order");
  return group->require_subcommand(1);
}

/// A new parser of the sub-command, below one of the first of its words when there are two.
CLI::App* parserOf(CLI::App& app, const SubCommand& command) {
  const std::string name = command.name;
  const std::size_t space = name.find(' ');
  if (space == std::string::npos) return app.add_subcommand(name, command.meaning);
  const std::string first = name.substr(0, space);
  const auto known = app.get_subcommands([&](CLI::App* each) { return each->get_name() == first; });
  CLI::App* group = known.empty() ? addGroup(app, first) : known.front();
  return group->add_subcommand(name.substr(space + 1), command.meaning);
}

bool takes(const SubCommand& command, const Flag& flag) {
  return std::ranges::find(command.flags, flag.name) != command.flags.end();
}

/// What the sub-command takes.
void addOwn(CLI::App& parser, const SubCommand& command, cli::Request& request) {
  for (const SubCommand::Argument& argument : command.arguments) {
    parser
        .add_option_function<std::string>(
            argument.name, [&](const std::string& text) { request.arguments.push_back(text); },
            argument.meaning)
        ->required()
        ->type_name(" ");
  }
  for (const Flag& flag : cli::flags()) {
    if (takes(command, flag)) parser.add_flag(flag.name, request.*flag.part, flag.meaning);
  }
  parser.footer(std::string("Example: ") + programName + ' ' + command.example +
                "\n\nThe options of " + programName +
                ", --root and others, may stand before or behind as well.");
}

void addSubCommand(CLI::App& app, const SubCommand& command, Options& options) {
  CLI::App& parser = *parserOf(app, command);
  // Once it is named: of the others nothing is asked.
  parser.preparse_callback([&](std::size_t) { addOwn(parser, command, options.request); });
  parser.callback([&] { options.subCommand = &command; });
}

/// Throws `CLI::ValidationError` for options that do not go with what is to be done.
void requireSense(const CLI::App& app, const Options& options) {
  const SubCommand* command = options.subCommand;
  const std::string place = command ? command->name : "the page";
  for (const char* name : {"--port", "--no-open"}) {
    const CLI::Option* option = app.get_option_no_throw(name);
    if (command && option && option->count() > 0) {
      throw CLI::ValidationError(std::string(name) + " is for the page, and not for " + place);
    }
  }
  for (const Flag& flag : cli::flags()) {
    if (options.request.*flag.part && !(command && takes(*command, flag))) {
      throw CLI::ValidationError(std::string(flag.name) + " is not for " + place);
    }
  }
}

std::vector<std::string> namesOfOptions() {
  std::vector<std::string> names = {"--help"};
  for (const Known& option : everyOption) names.emplace_back(option.name);
  for (const Flag& flag : cli::flags()) names.emplace_back(flag.name);
  return names;
}

/// The first of a sub-command's words, which a command line that asks for it begins with.
std::string_view firstWord(std::string_view name) { return name.substr(0, name.find(' ')); }

void addAll(CLI::App& app, const Words& words, Options& options) {
  app.fallthrough();
  app.require_subcommand(0, 1);
  for (const Known& option : everyOption) {
    if (words.name(option.name)) add(app, option, options);
  }
  for (const SubCommand& command : cli::subCommands()) {
    if (words.name(firstWord(command.name))) addSubCommand(app, command, options);
  }
  // Before a sub-command as well; their help stands with the sub-commands that take them.
  for (const Flag& flag : cli::flags()) {
    if (words.name(flag.name)) app.add_flag(flag.name, options.request.*flag.part)->group("");
  }
  app.footer(std::string("Without a sub-command the page is shown. ") + programName +
             " SUBCOMMAND --help tells more.");
}

}  // namespace

ParsedOptions parseOptions(int argc, const char* const* argv) {
  ParsedOptions parsed;
  CLI::App app("Quillmere's settings, on a desktop: a stand-in phone, shown in a browser.",
               programName);
  addAll(app, Words(argc, argv), parsed.options);
  try {
    app.parse(argc, argv);
    requireSense(app, parsed.options);
  } catch (const CLI::CallForHelp&) {
    std::cout << app.help();
    parsed.exitCode = 0;
  } catch (const CLI::ParseError& mistake) {
    std::cerr << "quillmere-settings: " << cli::visible(mistakeIn(app, mistake, namesOfOptions()))
              << " (--help tells the options)\n";
    parsed.exitCode = 2;
  }
  return parsed;
}

}  // namespace settings
