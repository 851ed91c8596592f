#include <boost/asio/signal_set.hpp>
#include <cstdlib>
#include <iostream>
#include <spawn.h>
#include <string>
#include <sys/wait.h>

#include "desktop/Phone.h"
#include "desktop/SettingsApplication.h"
#include "settings/Options.h"
#include "settings/PhoneSetup.h"
#include "settings/Screen.h"
#include "settings/Server.h"
#include "settings/Touch.h"

using namespace settings;

namespace {

bool hasDisplay() { return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY"); }

/// Asks the desktop to open the address; a desktop that cannot has said so itself.
void openBrowser(std::string address) {
  char program[] = "xdg-open";
  char* const arguments[] = {program, address.data(), nullptr};
  pid_t child;
  posix_spawnp(&child, program, nullptr, nullptr, arguments, environ);
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
