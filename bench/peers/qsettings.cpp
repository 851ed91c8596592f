#include <QSettings>
#include <stdexcept>

#include "bench/peers/Home.h"
#include "bench/peers/Settings.h"
#include "bench/peers/Syncs.h"
#include "bench/support/Contestant.h"

/// Qt's QSettings in its INI form, opened for each change. The library keeps what it has parsed and
/// parses again only when the file's time or size is another: it loads less than ours does. Saving
/// takes a lock file, writes aside, syncs the new file and renames it; the folder is not synced.
namespace {

using namespace bench;

QVariant variant(const std::string& value) { return QString::fromStdString(value); }
QVariant variant(int value) { return value; }
QVariant variant(bool value) { return value; }

void save(QSettings& settings) {
  settings.sync();
  if (settings.status() != QSettings::NoError) throw std::runtime_error("QSettings did not save");
}

Trial change(std::size_t size, const std::filesystem::path& folder) {
  liveIn(folder);
  const QString path = QString::fromStdString(folder / "settings.ini");
  QSettings settings(path, QSettings::IniFormat);
  forEachSetting(size, [&](const std::string& key, const auto& value) {
    settings.setValue(QString::fromStdString(key), variant(value));
  });
  save(settings);
  return [path, next = 2]() mutable {
    QSettings opened(path, QSettings::IniFormat);
    opened.setValue(changedKey, ++next);
    save(opened);
  };
}

constexpr Case cases[] = {{"change", change}, {"change-unsynced", unsynced<change>}};

}  // namespace

int main(int argc, char** argv) { return compete(argc, argv, cases); }
