#include "settings/Options.h"

#include <CLI/CLI.hpp>
#include <iostream>
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
  app.add_option("--root", root,
                 "The folder that stands in for the phone's file system\n"
                 "(default: quillmere/phone in your data folder)")
      ->type_name("DIR")
      ->check(something);
  app.add_option("--port", options.port, "The port to listen on; 0, the default, takes a free one")
      ->type_name("N")
      ->check(something);
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
