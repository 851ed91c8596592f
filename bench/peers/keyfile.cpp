#include <glib.h>
#include <memory>
#include <stdexcept>

#include "bench/peers/Settings.h"
#include "bench/peers/Syncs.h"
#include "bench/support/Contestant.h"

/// GLib's key files (GKeyFile), a text form of its own, each time from the disk: the whole file is
/// parsed, changed and saved. Saving writes aside, syncs the new file, renames it and syncs the
/// folder: what ours waits for.
namespace {

using namespace bench;

constexpr const char* group = "Settings";

struct Release {
  void operator()(GKeyFile* file) const { g_key_file_unref(file); }
};
using KeyFile = std::unique_ptr<GKeyFile, Release>;

void check(gboolean done, const char* what) {
  if (!done) throw std::runtime_error(std::string("GKeyFile could not ") + what);
}

KeyFile load(const std::string& path) {
  KeyFile file(g_key_file_new());
  check(g_key_file_load_from_file(file.get(), path.c_str(), G_KEY_FILE_NONE, nullptr), "load");
  return file;
}

void save(const KeyFile& file, const std::string& path) {
  check(g_key_file_save_to_file(file.get(), path.c_str(), nullptr), "save");
}

std::string made(std::size_t size, const std::filesystem::path& folder) {
  const KeyFile file(g_key_file_new());
  forEachSetting(size, Puts{[&](const std::string& key, const std::string& value) {
                              g_key_file_set_string(file.get(), group, key.c_str(), value.c_str());
                            },
                            [&](const std::string& key, int value) {
                              g_key_file_set_integer(file.get(), group, key.c_str(), value);
                            },
                            [&](const std::string& key, bool value) {
                              g_key_file_set_boolean(file.get(), group, key.c_str(), value);
                            }});
  const std::string path = folder / "settings.ini";
  save(file, path);
  return path;
}

Trial change(std::size_t size, const std::filesystem::path& folder) {
  return [path = made(size, folder), next = 2]() mutable {
    const KeyFile file = load(path);
    g_key_file_set_integer(file.get(), group, changedKey, ++next);
    save(file, path);
  };
}

Trial read(std::size_t size, const std::filesystem::path& folder) {
  return [path = made(size, folder)] {
    check(g_key_file_get_integer(load(path).get(), group, changedKey, nullptr) == 2, "read");
  };
}

// Its one form is a text, but it stands beside both of ours.
constexpr Case cases[] = {
    {"change", change},
    {"change-unsynced", unsynced<change>},
    {"read-binary", read},
    {"read-xml", read},
};

}  // namespace

int main(int argc, char** argv) { return compete(argc, argv, cases); }
