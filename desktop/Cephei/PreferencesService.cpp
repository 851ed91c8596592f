#include "desktop/Cephei/PreferencesService.h"

#include <system_error>

#include "desktop/Cephei/PendingChanges.h"
#include "desktop/Foundation/PropertyListFile.h"
#include "desktop/Phone.h"

namespace desktop {

namespace {

std::string pathOf(const std::string& domain) {
  return "/var/mobile/Library/Preferences/" + domain + ".plist";
}

std::string pendingPathOf(const std::string& domain) { return pathOf(domain) + ".pending"; }

PendingChanges readPending(const Phone& phone, const std::string& path) {
  const auto file = readPropertyList(phone.folder, path);
  if (!file) return {};
  if (auto changes = PendingChanges::fromDictionary(file->dictionary)) return *changes;
  throw UnreadableFile("it does not hold pending changes");
}

}  // namespace

/// A domain as it stands on disk.
struct PreferencesService::Domain {
  PropertyListFile file;
  bool missing = false;
  /// Why the file cannot be read; none when it can, or is missing.
  std::optional<std::string> unreadable;
  PendingChanges pending;
};

PreferencesService::Domain PreferencesService::load(const std::string& domain) const {
  Domain state;
  state.pending = readPending(phone_, pendingPathOf(domain));
  try {
    auto file = readPropertyList(phone_.folder, pathOf(domain));
    state.missing = !file;
    if (file) state.file = *std::move(file);
  } catch (const UnreadableFile& reason) {
    state.unreadable = reason.what();
    return state;
  }
  if (!state.pending.empty()) {
    state.pending.applyTo(state.file.dictionary);
    writePropertyList(phone_.folder, pathOf(domain), state.file);
    phone_.folder.remove(pendingPathOf(domain));
    phone_.report(pathOf(domain) + " took the changes that were kept beside it");
    state.missing = false;
    state.pending = {};
  }
  return state;
}

std::optional<plist::Value> PreferencesService::value(const std::string& domain,
                                                      std::string_view key) const {
  try {
    Domain state = load(domain);
    state.pending.applyTo(state.file.dictionary);
    const plist::Value* found = state.file.dictionary.find(key);
    return found ? std::optional(*found) : std::nullopt;
  } catch (const std::exception& failure) {
    phone_.report(pathOf(domain) + ": " + failure.what());
    return std::nullopt;
  }
}

void PreferencesService::set(const std::string& domain, const std::string& key,
                             const std::optional<plist::Value>& value) const {
  try {
    Domain state = load(domain);
    if (state.unreadable) {
      state.pending.add(key, value);
      writePropertyList(phone_.folder, pendingPathOf(domain), {state.pending.toDictionary()});
      phone_.report(pathOf(domain) + " cannot be read (" + *state.unreadable +
                    "): it is left as it is, and " + key + " is kept in " + pendingPathOf(domain));
      return;
    }
    const plist::Value* present = state.file.dictionary.find(key);
    if (value ? present && *present == *value : !present) return;
    if (value) {
      state.file.dictionary.set(key, *value);
    } else {
      state.file.dictionary.erase(key);
    }
    writePropertyList(phone_.folder, pathOf(domain), state.file);
  } catch (const std::exception& failure) {
    phone_.report(key + " was not stored in " + pathOf(domain) + ": " + failure.what());
  }
}

void PreferencesService::settle(const std::string& domain) const {
  try {
    load(domain);
  } catch (const std::exception& failure) {
    phone_.report(pendingPathOf(domain) + ": " + failure.what());
  }
}

}  // namespace desktop
