#define G_SETTINGS_ENABLE_BACKEND
#include <cstdlib>
#include <gio/gsettingsbackend.h>

#include "bench/peers/Home.h"
#include "bench/peers/Schema.h"
#include "bench/peers/SchemaFile.h"
#include "bench/peers/Settings.h"
#include "bench/peers/Syncs.h"
#include "bench/support/Contestant.h"

/// GNOME's GSettings over a key file, kept open as such programs do. The library keeps what it has
/// loaded and loads again only when it hears that another has written, which is outside the time
/// taken here. It writes aside, syncs the new file and renames it; the folder is not synced.
namespace {

using namespace bench;

/// What the file system tells about the last change.
void hear() {
  while (g_main_context_iteration(nullptr, false)) {
  }
}

Trial change(std::size_t size, const std::filesystem::path& folder) {
  liveIn(folder);
  const std::string path = folder / "settings.ini";
  const std::shared_ptr<GSettings> settings =
      stored(size, folder, g_keyfile_settings_backend_new(path.c_str(), schemaPath, "Settings"));
  return {hear, [settings, next = 2]() mutable { bench::change(settings.get(), ++next); }};
}

constexpr Case cases[] = {{"change", change}, {"change-unsynced", unsynced<change>}};

}  // namespace

int main(int argc, char** argv) { return compete(argc, argv, cases); }
