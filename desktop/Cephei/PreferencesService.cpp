#include "desktop/Cephei/PreferencesService.h"

#include <algorithm>
#include <stdexcept>

#include "desktop/Cephei/PendingChanges.h"
#include "desktop/Foundation/PropertyListFile.h"
#include "desktop/Phone.h"

namespace desktop {

namespace {

constexpr std::string_view folder = "/var/mobile/Library/Preferences/";
constexpr std::string_view pendingEnding = ".plist.pending";

std::string pathOf(const std::string& domain) { return std::string(folder) + domain + ".plist"; }

std::string pendingPathOf(const std::string& domain) {
  return std::string(folder) + domain + std::string(pendingEnding);
}

/// Whether the file holds the value as it can: XML has one width of real.
bool holds(const PropertyListFile& file, const std::string& key, const plist::Value& value) {
  const bool widens = file.form == plist::Form::Xml && value.singleReal();
  return file.entries.holds(key, widens ? plist::Value::real(*value.real()) : value);
}

/// Whether its readers change a part of it and store it as a whole.
bool isContainer(const std::optional<plist::Value>& value) {
  return value && (value->array() || value->dictionary());
}

}  // namespace

/// A domain as it stands on disk.
struct PreferencesService::Domain {
  PropertyListFile file;
  bool isMissing = false;
  /// Why the file cannot be read; none when it can, or is missing.
  std::optional<std::string> unreadable;
  /// None when what is kept beside the file cannot be read.
  std::optional<PendingChanges> pending;
};

std::optional<PendingChanges> PreferencesService::readPending(const std::string& path) const {
  std::string complaint;
  try {
    const auto file = readPropertyList(phone_.folder, path);
    if (!file) return PendingChanges();
    if (auto changes = PendingChanges::fromDictionary(file->entries.all())) return changes;
    complaint = path + " does not hold changes: it is left as it is";
  } catch (const UnreadableFile& reason) {
    complaint = path + " cannot be read (" + reason.what() + "): it is left as it is";
  }
  if (told_.insert(complaint).second) phone_.report(complaint);
  return std::nullopt;
}

PreferencesService::Domain PreferencesService::load(const std::string& domain) const {
  Domain state;
  state.pending = readPending(pendingPathOf(domain));
  try {
    auto file = readPropertyList(phone_.folder, pathOf(domain));
    state.isMissing = !file;
    if (file) state.file = *std::move(file);
  } catch (const UnreadableFile& reason) {
    state.unreadable = reason.what();
  }
  return state;
}

void PreferencesService::merge(const std::string& domain, Domain& state) const {
  if (state.unreadable || !state.pending || state.pending->empty()) return;
  plist::Dictionary& all = state.file.entries.all();
  state.pending->applyTo(all);
  // A file that is gone has no keys left to remove.
  if (!state.isMissing || !all.empty()) {
    writePropertyList(phone_.folder, pathOf(domain), state.file);
  }
  phone_.folder.remove(pendingPathOf(domain));
  phone_.report(pathOf(domain) + " took the changes that were kept beside it");
}

void PreferencesService::keep(const std::string& domain, Domain& state, const std::string& what,
                              const std::function<void(PendingChanges&)>& change) const {
  const std::string file = pathOf(domain) + " cannot be read (" + *state.unreadable + ")";
  if (!state.pending) throw std::runtime_error(file);
  change(*state.pending);
  writePropertyList(phone_.folder, pendingPathOf(domain), {Entries(state.pending->toDictionary())});
  phone_.reportLoss(file + ": it is left as it is, and " + what + " is kept in " +
                    pendingPathOf(domain));
}

std::optional<plist::Value> PreferencesService::value(const std::string& domain,
                                                      const std::string& key) {
  Domain state = load(domain);
  if (state.pending && !state.pending->empty()) {
    settle(domain);
    state = load(domain);
  }
  return answers_[domain][key] = valueIn(state, key);
}

bool PreferencesService::answersAreOutdated() const {
  return std::ranges::any_of(answers_, [&](const auto& each) {
    const Domain now = load(each.first);
    return std::ranges::any_of(each.second, [&](const auto& answer) {
      const std::optional<plist::Value> value = valueIn(now, answer.first);
      return (isContainer(answer.second) || isContainer(value)) && value != answer.second;
    });
  });
}

std::optional<plist::Value> PreferencesService::valueIn(const Domain& state, std::string_view key) {
  if (!state.pending || state.pending->empty()) return state.file.entries.find(key);
  plist::Dictionary all = state.file.entries.all();
  state.pending->applyTo(all);
  return Entries(std::move(all)).find(key);
}

void PreferencesService::set(const std::string& domain, const std::string& key,
                             const std::optional<plist::Value>& value) {
  // Whoever sets it holds it, stored or not.
  answers_[domain][key] = value;
  try {
    store(domain, key, value);
  } catch (const std::exception& failure) {
    phone_.reportLoss(key + " was not stored in " + pathOf(domain) + ": " + failure.what());
  }
}

void PreferencesService::store(const std::string& domain, const std::string& key,
                               const std::optional<plist::Value>& value) const {
  Domain state = load(domain);
  if (state.unreadable) {
    return keep(domain, state, key, [&](PendingChanges& changes) { changes.add(key, value); });
  }
  merge(domain, state);
  Entries& entries = state.file.entries;
  if (value ? holds(state.file, key, *value) : !entries.find(key)) return;
  if (value) {
    entries.set(key, *value);
  } else {
    entries.all().erase(key);
  }
  writePropertyList(phone_.folder, pathOf(domain), state.file);
}

void PreferencesService::clear(const std::string& domain) const {
  try {
    Domain state = load(domain);
    if (state.unreadable) {
      return keep(domain, state, "the removal of all keys",
                  [](PendingChanges& changes) { changes.clear(); });
    }
    merge(domain, state);
    if (state.file.entries.all().empty()) return;
    state.file.entries = {};
    writePropertyList(phone_.folder, pathOf(domain), state.file);
  } catch (const std::exception& failure) {
    phone_.reportLoss(pathOf(domain) + " was not cleared: " + failure.what());
  }
}

void PreferencesService::settle(const std::string& domain) const {
  if (!merges) return;
  try {
    Domain state = load(domain);
    merge(domain, state);
  } catch (const std::exception& failure) {
    phone_.report(pathOf(domain) + " did not take the changes kept beside it: " + failure.what());
  }
}

void PreferencesService::settleAll() const {
  if (!merges || !phone_.folder.exists(folder)) return;
  for (const std::string& name : phone_.folder.list(folder)) {
    if (name.ends_with(pendingEnding)) {
      settle(name.substr(0, name.size() - pendingEnding.size()));
    }
  }
}

}  // namespace desktop
