#include <KConfig>
#include <KConfigGroup>
#include <stdexcept>

#include "bench/peers/Home.h"
#include "bench/peers/Settings.h"
#include "bench/peers/Syncs.h"
#include "bench/support/Contestant.h"

/// KDE's KConfig on one file without the desktop's defaults beneath it (SimpleConfig), opened and
/// thereby parsed for each change. Saving takes a lock file, parses again what another may have
/// written, writes aside, syncs the new file and renames it; the folder is not synced.
namespace {

using namespace bench;

constexpr const char* group = "Settings";

QVariant variant(const std::string& value) { return QString::fromStdString(value); }
QVariant variant(int value) { return value; }
QVariant variant(bool value) { return value; }

void save(KConfig& config) {
  if (!config.sync()) throw std::runtime_error("KConfig did not save");
}

Trial change(std::size_t size, const std::filesystem::path& folder) {
  liveIn(folder);
  const QString path = QString::fromStdString(folder / "settingsrc");
  KConfig config(path, KConfig::SimpleConfig);
  KConfigGroup settings = config.group(group);
  forEachSetting(size, [&](const std::string& key, const auto& value) {
    settings.writeEntry(key.c_str(), variant(value));
  });
  save(config);
  return [path, next = 2]() mutable {
    KConfig opened(path, KConfig::SimpleConfig);
    opened.group(group).writeEntry(changedKey, ++next);
    save(opened);
  };
}

constexpr Case cases[] = {{"change", change}, {"change-unsynced", unsynced<change>}};

}  // namespace

int main(int argc, char** argv) { return compete(argc, argv, cases); }
