#include <boost/asio/signal_set.hpp>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <spawn.h>
#include <string>
#include <unistd.h>

#include "desktop/Phone.h"
#include "desktop/SettingsApplication.h"
#include "settings/Options.h"
#include "settings/PhoneSetup.h"
#include "settings/Screen.h"
#include "settings/Server.h"
#include "settings/Touch.h"

using namespace settings;

namespace {

bool isSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value && *value;
}

bool hasDisplay() { return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY"); }

/// Gives each standard stream that is closed a place to go. Its number would otherwise go to the
/// next file or socket, which would then get what is printed.
void openStandardStreams() {
  int number;
  do number = open("/dev/null", O_RDWR);
  while (number >= 0 && number < STDERR_FILENO);
  if (number > STDERR_FILENO) close(number);
}

/// Asks the desktop to open the address; a desktop that cannot has said so itself.
void openBrowser(std::string address) {
  char program[] = "xdg-open";
  char* const arguments[] = {program, address.data(), nullptr};
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  // A browser that had the port as well would keep it beyond the end of this program.
  posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
  pid_t child;
  posix_spawnp(&child, program, &actions, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
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
