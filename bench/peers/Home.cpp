#include "bench/peers/Home.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <system_error>
#include <unistd.h>

namespace bench {

namespace {

struct Place {
  const char* variable;
  const char* name;
};

constexpr std::array places{
    Place{"HOME", ""},
    Place{"TMPDIR", "tmp"},
    Place{"XDG_CACHE_HOME", "cache"},
    Place{"XDG_CONFIG_HOME", "config"},
    Place{"XDG_DATA_HOME", "data"},
    Place{"XDG_RUNTIME_DIR", "run"},
    Place{"XDG_STATE_HOME", "state"},
};

/// GNUstep asks the system's list of users for a home, not the environment.
void leadGnustepTo(const std::filesystem::path& folder) {
  const std::filesystem::path configuration = folder / "GNUstep.conf";
  std::ofstream(configuration) << "GNUSTEP_USER_DEFAULTS_DIR=" << (folder / "Defaults").native()
                               << '\n';
  setenv("GNUSTEP_CONFIG_FILE", configuration.c_str(), 1);
}

}  // namespace

void liveIn(const std::filesystem::path& folder) {
  for (const auto& [variable, name] : places) {
    const std::filesystem::path place = *name ? folder / name : folder;
    std::filesystem::create_directories(place);
    setenv(variable, place.c_str(), 1);
  }
  std::filesystem::permissions(folder / "run", std::filesystem::perms::owner_all);
  leadGnustepTo(folder);
  for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS"}) {
    unsetenv(variable);
  }
}

void startAtHome(int argc, char** argv) {
  if (argc != 4) return;
  const std::filesystem::path folder = std::filesystem::absolute(argv[3]);
  const char* home = std::getenv("HOME");
  if (home && home == folder) return;
  liveIn(folder);
  execv("/proc/self/exe", argv);
  throw std::system_error(errno, std::generic_category(), argv[0]);
}

}  // namespace bench
