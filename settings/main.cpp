#include <boost/asio/signal_set.hpp>
#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <string>
#include <unistd.h>

#include "desktop/Phone.h"
#include "desktop/SettingsApplication.h"
#include "settings/Browser.h"
#include "settings/Options.h"
#include "settings/PhoneSetup.h"
#include "settings/Screen.h"
#include "settings/Server.h"
#include "settings/Touch.h"

using namespace settings;

namespace {

/// Gives each standard stream that is closed a place to go. Its number would otherwise go to the
/// next file or socket, which would then get what is printed.
void openStandardStreams() {
  int number;
  do number = open("/dev/null", O_RDWR);
  while (number >= 0 && number < STDERR_FILENO);
  if (number > STDERR_FILENO) close(number);
}

std::filesystem::path phoneFolder(const Options& options) {
  if (!options.root.empty()) {
    requireFolder(options.root);
    return options.root;
  }
  const std::filesystem::path folder = defaultPhoneFolder();
  std::filesystem::create_directories(folder.parent_path());
  requireFolder(folder);
  return folder;
}

void run(const Options& options) {
  desktop::Phone phone(phoneFolder(options));
  setUpPhone(phone.folder);
  phone.preferences.start();
  desktop::SettingsApplication application("Quillmere");

  boost::asio::io_context loop(1);
  Server server(loop, options.port,
                {[&] { return Screen(application.navigation).tree(); },
                 [&](std::string_view message) { touch(application.navigation, message); }});
  boost::asio::signal_set signals(loop, SIGINT, SIGTERM);
  signals.async_wait([&](auto, auto) { loop.stop(); });
  std::cout << "Quillmere Settings: " << server.address() << std::endl;
  if (options.open && hasDisplay()) openBrowser(server.address());
  loop.run();
}

}  // namespace

int main(int argc, char** argv) {
  openStandardStreams();
  std::signal(SIGPIPE, SIG_IGN);  // Nobody may be reading what is printed.
  const ParsedOptions parsed = parseOptions(argc, argv);
  if (parsed.exitCode) return *parsed.exitCode;
  try {
    run(parsed.options);
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "quillmere-settings: " << failure.what() << std::endl;
    return 1;
  }
}
