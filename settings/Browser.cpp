#include "settings/Browser.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <spawn.h>
#include <unistd.h>

namespace settings {

namespace {

bool isSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value && *value;
}

}  // namespace

bool hasDisplay() { return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY"); }

void openBrowser(std::string address) {
  char program[] = "xdg-open";
  char* const arguments[] = {program, address.data(), nullptr};

  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  // Standard output is for the address alone. And a browser that had the port as well would keep it
  // beyond the end of this program.
  posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);

  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  // A session of its own: Ctrl-C here must not end the browser.
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF);
  sigset_t restored;
  sigemptyset(&restored);
  sigaddset(&restored, SIGPIPE);
  posix_spawnattr_setsigdefault(&attributes, &restored);

  pid_t child;
  const int error = posix_spawnp(&child, program, &files, &attributes, arguments, environ);
  if (error != 0) {
    std::cerr << "quillmere-settings: no browser was opened (xdg-open: " << std::strerror(error)
              << ")" << std::endl;
  }
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&files);
}

}  // namespace settings
