#include "bench/peers/Home.h"

#include <array>
#include <cstdlib>

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

}  // namespace

void liveIn(const std::filesystem::path& folder) {
  for (const auto& [variable, name] : places) {
    const std::filesystem::path place = *name ? folder / name : folder;
    std::filesystem::create_directories(place);
    setenv(variable, place.c_str(), 1);
  }
  std::filesystem::permissions(folder / "run", std::filesystem::perms::owner_all);
  for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS"}) {
    unsetenv(variable);
  }
}

}  // namespace bench
