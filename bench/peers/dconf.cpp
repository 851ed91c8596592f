#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string_view>

#include "bench/peers/Home.h"
#include "bench/peers/Schema.h"
#include "bench/peers/SessionBus.h"
#include "bench/peers/Settings.h"
#include "bench/support/Contestant.h"

/// GNOME's GSettings over dconf, in a session of its own. The program keeps its settings open, as
/// such programs do; a change goes to the session's service over D-Bus, which reads its file,
/// writes it anew aside, syncs, renames and syncs the folder: what ours waits for.
namespace {

using namespace bench;

void requireDconf(GSettings* settings) {
  GSettingsBackend* backend = nullptr;
  g_object_get(settings, "backend", &backend, nullptr);
  const std::string_view kind = G_OBJECT_TYPE_NAME(backend);
  g_object_unref(backend);
  if (kind != "DConfSettingsBackend") throw Unavailable("dconf's backend is not installed");
}

/// A session that the program outlives: it would otherwise end by a signal together with it.
struct Session {
  Session() : connection(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr), g_object_unref) {
    if (!connection) throw std::runtime_error("no connection to the session");
    g_dbus_connection_set_exit_on_close(connection.get(), false);
  }

  SessionBus bus;
  std::shared_ptr<GDBusConnection> connection;
};

Trial change(std::size_t size, const std::filesystem::path& folder) {
  liveIn(folder);
  setenv("GSETTINGS_BACKEND", "dconf", 1);
  const auto session = std::make_shared<Session>();
  const std::shared_ptr<GSettings> settings = stored(size, folder);
  requireDconf(settings.get());
  return [session, settings, next = 2]() mutable { bench::change(settings.get(), ++next); };
}

}  // namespace

int main(int argc, char** argv) {
  constexpr Case cases[] = {{"change", change}};
  return compete(argc, argv, cases);
}
