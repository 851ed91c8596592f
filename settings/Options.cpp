#include "settings/Options.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <regex>
#include <string>

namespace settings {

ParsedOptions parseOptions(int argc, const char* const* argv) {
  ParsedOptions parsed;
  Options& options = parsed.options;
  std::string root;
  bool noOpen = false;
  CLI::App app("Quillmere's settings, on a desktop: a stand-in phone, shown in a browser.",
               "./run");
  // An empty value, of an unset variable most likely, would otherwise count as none.
  const CLI::Validator something(
      [](const std::string& value) { return value.empty() ? "a value is missing" : ""; }, "");
  const CLI::Validator version(
      [](const std::string& value) {
        const bool fits = std::regex_match(value, std::regex("[0-9]{1,4}(\\.[0-9]{1,4}){0,2}"));
        return fits ? "" : "\"" + value + "\" is no version, such as 14.3";
      },
      "");
  app.add_option("--root", root,
                 "The folder that stands in for the phone's file system\n"
                 "(default: quillmere/phone in your data folder)")
      ->type_name("DIR")
      ->check(something);
  app.add_option("--port", options.port, "The port to listen on; 0, the default, takes a free one")
      ->type_name("N")
      ->check(something);
  app.add_option("--screen-scale", options.screenScale,
                 "How many pixels the phone's screen has to a point (default: 3)")
      ->type_name("1|2|3")
      ->check(CLI::IsMember({"1", "2", "3"}));
  app.add_option("--ios-version", options.iosVersion,
                 "The version of iOS that the phone says it has, such as 14.3\n"
                 "(default: as its SystemVersion.plist has it)")
      ->type_name("VERSION")
      ->check(version);
  app.add_option("--ios-build", options.iosBuild, "The build of it, such as 18C66")
      ->type_name("BUILD")
      ->check(something);
  app.add_option("--product-type", options.productType,
                 "The model that the phone says it is, such as iPhone12,1")
      ->type_name("MODEL")
      ->check(something);
  app.add_option("--respring-command", options.respringCommand,
                 "Run this by sh when the phone resprings")
      ->type_name("COMMAND");
  app.add_option("--notify-command", options.notifyCommand,
                 "Run this by sh for every Darwin notification; its name is $1")
      ->type_name("COMMAND");
  app.add_option("--mail-command", options.mailCommand,
                 "Run this by sh for every mail sent; the message is its standard input")
      ->type_name("COMMAND");
  app.add_flag("--no-open", noOpen, "Do not open a browser");
  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp&) {
    std::cout << app.help();
    parsed.exitCode = 0;
  } catch (const CLI::ParseError& mistake) {
    std::cerr << "quillmere-settings: " << mistake.what() << " (--help tells the options)\n";
    parsed.exitCode = 2;
  }
  options.root = root;
  options.open = !noOpen;
  return parsed;
}

}  // namespace settings
