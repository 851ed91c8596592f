#include "tests/promises/crash/Phone.h"

#include <fstream>
#include <optional>
#include <stdexcept>

#include "desktop/Cephei/PendingChanges.h"
#include "plist/Document.h"
#include "tests/promises/crash/Trace.h"
#include "tests/support/program/SubCommands.h"

namespace crash_tests {

namespace fs = std::filesystem;

namespace {

constexpr const char* preferences = "var/mobile/Library/Preferences";
constexpr const char* file = "com.orvalen.quillmere.plist";
constexpr const char* pending = "com.orvalen.quillmere.plist.pending";

std::optional<plist::Dictionary> read(const fs::path& path) {
  const auto bytes = program_tests::contents(path);
  if (!bytes) return std::nullopt;
  const plist::Document document = plist::read(*bytes);
  if (!document.root.dictionary()) throw plist::Unreadable("no dictionary");
  return *document.root.dictionary();
}

std::string binary(const std::string& xml) { return plist::writeBinary(plist::read(xml).root); }

}  // namespace

void prepare(const fs::path& phone, Before before) {
  fs::create_directories(phone);
  if (before == Before::NoPhone) return;
  // What makes a phone is any change; what it stored goes again.
  const Run made = run({{"--root", phone.string(), "set", "cameraEnabled", "off"}});
  if (made.exitCode != 0) throw std::runtime_error("no phone can be made: " + made.said);
  const fs::path settings = phone / preferences / file;
  fs::remove(settings);
  if (before == Before::NoPreferences) return;
  const std::string xml = std::string("<plist><dict>") + preferencesBefore + "</dict></plist>";
  std::ofstream(settings, std::ios::binary) << (before == Before::Xml ? xml : binary(xml));
}

void copyPhone(const fs::path& phone, const fs::path& copy) {
  fs::remove_all(copy);
  fs::copy(phone, copy, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

namespace {

/// As XML gives it back, which has one width of real: a kept number gets it when it is merged.
plist::Dictionary widened(const plist::Dictionary& settings) {
  return *plist::read(plist::writeXml(plist::Value(settings)).value()).root.dictionary();
}

}  // namespace

plist::Dictionary settingsOf(const fs::path& phone) {
  const fs::path folder = phone / preferences;
  plist::Dictionary settings = read(folder / file).value_or(plist::Dictionary());
  const auto kept = read(folder / pending);
  if (!kept) return widened(settings);
  const auto changes = desktop::PendingChanges::fromDictionary(*kept);
  if (!changes) throw plist::Unreadable("what is kept beside the file is no changes");
  changes->applyTo(settings);
  return widened(settings);
}

Contents contentsOf(const fs::path& phone) {
  Contents contents;
  for (const auto& entry : fs::recursive_directory_iterator(phone)) {
    const fs::path& path = entry.path();
    contents[path.lexically_relative(phone)] = entry.is_symlink() ? fs::read_symlink(path).string()
                                               : entry.is_directory()
                                                   ? "/"
                                                   : program_tests::contents(path).value_or("");
  }
  return contents;
}

Contents besidesSettings(Contents contents) {
  contents.erase((fs::path(preferences) / file).string());
  return contents;
}

}  // namespace crash_tests
