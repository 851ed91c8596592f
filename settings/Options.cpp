#include "settings/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <string>

#include "desktop/Identity.h"

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

void addPhone(CLI::App& app, Options& options) {
  app.add_option_function<std::string>(
         "--root", [&](const std::string& folder) { options.root = folder; },
         "The folder that stands in for the phone's file system\n"
         "(default: quillmere/phone in your data folder)")
      ->type_name("DIR")
      ->check(something());
  app.add_option("--screen-scale", options.screenScale,
                 "How many pixels the phone's screen has to a point (default: 3)")
      ->option_text("1|2|3")
      ->check(CLI::IsMember({"1", "2", "3"}));
  app.add_option("--ios-version", options.iosVersion,
                 "The version of iOS that the phone says it has, such as 14.3\n"
                 "(default: as its SystemVersion.plist has it)")
      ->type_name("VERSION")
      ->check(version());
  app.add_option("--ios-build", options.iosBuild, "The build of it, such as 18C66")
      ->type_name("BUILD")
      ->check(something());
  app.add_option("--product-type", options.productType,
                 "The model that the phone says it is, such as iPhone12,1")
      ->type_name("MODEL")
      ->check(something());
}

void addCommands(CLI::App& app, Options& options) {
  app.add_option("--respring-command", options.respringCommand,
                 "Run this by sh when the phone resprings")
      ->type_name("COMMAND");
  app.add_option("--notify-command", options.notifyCommand,
                 "Run this by sh for every Darwin notification; its name is $1")
      ->type_name("COMMAND");
  app.add_option("--mail-command", options.mailCommand,
                 "Run this by sh for every mail sent; the message is its standard input")
      ->type_name("COMMAND");
}

/// What only the page has a use for.
void addPage(CLI::App& app, Options& options) {
  app.add_option("--port", options.port, "The port to listen on; 0, the default, takes a free one")
      ->type_name("N")
      ->check(something());
  app.add_flag_callback(
      "--no-open", [&] { options.open = false; }, "Do not open a browser");
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
    if (command && app.count(name) > 0) {
      throw CLI::ValidationError(std::string(name) + " is for the page, and not for " + place);
    }
  }
  for (const Flag& flag : cli::flags()) {
    if (options.request.*flag.part && !(command && takes(*command, flag))) {
      throw CLI::ValidationError(std::string(flag.name) + " is not for " + place);
    }
  }
}

void addAll(CLI::App& app, Options& options) {
  app.fallthrough();
  app.require_subcommand(0, 1);
  addPhone(app, options);
  addCommands(app, options);
  addPage(app, options);
  for (const SubCommand& command : cli::subCommands()) addSubCommand(app, command, options);
  // Before a sub-command as well; their help stands with the sub-commands that take them.
  for (const Flag& flag : cli::flags())
    app.add_flag(flag.name, options.request.*flag.part)->group("");
  app.footer(std::string("Without a sub-command the page is shown. ") + programName +
             " SUBCOMMAND --help tells more.");
}

}  // namespace

ParsedOptions parseOptions(int argc, const char* const* argv) {
  ParsedOptions parsed;
  CLI::App app("Quillmere's settings, on a desktop: a stand-in phone, shown in a browser.",
               programName);
  addAll(app, parsed.options);
  try {
    app.parse(argc, argv);
    requireSense(app, parsed.options);
  } catch (const CLI::CallForHelp&) {
    std::cout << app.help();
    parsed.exitCode = 0;
  } catch (const CLI::ParseError& mistake) {
    std::cerr << "quillmere-settings: " << mistake.what() << " (--help tells the options)\n";
    parsed.exitCode = 2;
  }
  return parsed;
}

}  // namespace settings
