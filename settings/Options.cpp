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

/// An option, whose name is handed back to the function that tells the parser of it.
struct Known {
  const char* name;
  void (*add)(CLI::App& app, const char* name, Options& options);
};

constexpr Known everyOption[] = {
    {"--root",
     [](CLI::App& app, const char* name, Options& options) {
       app.add_option_function<std::string>(
              name, [&](const std::string& folder) { options.root = folder; },
              "The folder that stands in for the phone's file system\n"
              "(default: quillmere/phone in your data folder)")
           ->type_name("DIR")
           ->check(something());
     }},
    {"--screen-scale",
     [](CLI::App& app, const char* name, Options& options) {
       app.add_option(name, options.screenScale,
                      "How many pixels the phone's screen has to a point (default: 3)")
           ->option_text("1|2|3")
           ->check(CLI::IsMember({"1", "2", "3"}));
     }},
    {"--ios-version",
     [](CLI::App& app, const char* name, Options& options) {
       app.add_option(name, options.iosVersion,
                      "The version of iOS that the phone says it has, such as 14.3\n"
                      "(default: as its SystemVersion.plist has it). The build that stands\n"
                      "there is of that version: for another one, tell --ios-build as well")
           ->type_name("VERSION")
           ->check(version());
     }},
    {"--ios-build",
     [](CLI::App& app, const char* name, Options& options) {
       app.add_option(name, options.iosBuild, "The build of it, such as 18C66")
           ->type_name("BUILD")
           ->check(something());
     }},
    {"--product-type",
     [](CLI::App& app, const char* name, Options& options) {
       app.add_option(name, options.productType,
                      "The model that the phone says it is, such as iPhone12,1")
           ->type_name("MODEL")
           ->check(something());
     }},
    {"--respring-command",
     [](CLI::App& app, const char* name, Options& options) {
       app.add_option(name, options.respringCommand, "Run this by sh when the phone resprings")
           ->type_name("COMMAND");
     }},
    {"--notify-command",
     [](CLI::App& app, const char* name, Options& options) {
       app.add_option(name, options.notifyCommand,
                      "Run this by sh for every Darwin notification; its name is $1")
           ->type_name("COMMAND");
     }},
    {"--mail-command",
     [](CLI::App& app, const char* name, Options& options) {
       app.add_option(name, options.mailCommand,
                      "Run this by sh for every mail sent; the message is its standard input")
           ->type_name("COMMAND");
     }},
    {"--port",
     [](CLI::App& app, const char* name, Options& options) {
       app.add_option(name, options.port, "The port to listen on; 0, the default, takes a free one")
           ->type_name("N")
           ->check(port());
     }},
    {"--no-open",
     [](CLI::App& app, const char* name, Options& options) {
       app.add_flag_callback(
           name, [&] { options.open = false; }, "Do not open a browser");
     }},
};

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
    if (words.name(option.name)) option.add(app, option.name, options);
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
