#include "settings/PhoneSetup.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <stdexcept>
#include <unistd.h>

#include "settings/Asset.h"

namespace settings {

namespace fs = std::filesystem;

namespace {

/// What a phone has from the beginning.
constexpr const char* folders[] = {
    "/Library/PreferenceBundles/Quillmere.bundle",
    "/Library/PreferenceLoader/Preferences",
    "/Library/Lotties/Quillmere",
    "/System/Library/CoreServices",
    "/var/mobile/Library/Preferences",
};

/// Stands in a new phone until all is in it, so that an interrupted start is made good by the next.
/// A link, which is made all at once.
constexpr const char* unfinished = "/.quillmere-unfinished";

/// What it has once a mail was written.
constexpr const char* mailFolders[] = {
    "/var/mobile/Library/Mail/Drafts",
    "/var/mobile/Library/Mail/Outbox",
};

void install(const desktop::PhoneFolder& folder, std::span<const Asset> files) {
  for (const Asset& file : files) {
    if (folder.read(file.path) != file.bytes) folder.replace(file.path, file.bytes);
  }
}

const char* environment(const char* name) {
  const char* value = std::getenv(name);
  return value && *value ? value : nullptr;
}

}  // namespace

fs::path defaultPhoneFolder() {
  // The variable counts only when it holds an absolute path.
  if (const char* data = environment("XDG_DATA_HOME"); data && fs::path(data).is_absolute()) {
    return fs::path(data) / "quillmere/phone";
  }
  if (const char* home = environment("HOME")) {
    return fs::path(home) / ".local/share/quillmere/phone";
  }
  throw std::runtime_error("HOME is not set: name the phone folder with --root");
}

void requireFolder(const fs::path& folder) {
  std::error_code error;
  if (fs::create_directory(folder, error)) {
    std::cerr << "quillmere-settings: made a new phone in " << folder.string() << std::endl;
  }
  const fs::file_status status = fs::status(folder);
  if (!fs::exists(status)) {
    throw std::runtime_error(folder.string() + " cannot be made (" + error.message() + ")");
  }
  if (!fs::is_directory(status)) throw std::runtime_error(folder.string() + " is not a folder");
  if (access(folder.c_str(), W_OK | X_OK) != 0) {
    throw std::runtime_error(folder.string() + " is not writable (" + std::strerror(errno) + ")");
  }
}

bool holdsPhone(const desktop::PhoneFolder& folder) {
  return folder.exists("/Library") || folder.exists("/var");
}

void setUpPhone(const desktop::PhoneFolder& folder) {
  const bool isNew = !holdsPhone(folder) || folder.exists(unfinished);
  if (isNew) folder.makeLink(unfinished, ".");
  for (const char* path : folders) {
    if (!folder.exists(path)) folder.makeFolders(path);
  }
  folder.makeLink("/User", "var/mobile");
  // A copy that followed links has two folders instead: pages and service would part ways.
  if (!folder.areSame("/User", "/var/mobile")) {
    throw std::runtime_error("User in the phone folder has to be a link to var/mobile");
  }
  install(folder, bundleFiles());
  if (!isNew) return;
  install(folder, sampleFiles());
  folder.remove(unfinished);
}

void sweepPhone(const desktop::PhoneFolder& folder) {
  const auto sweep = [&](const char* path) {
    if (folder.exists(path)) folder.sweep(path);
  };
  std::ranges::for_each(folders, sweep);
  std::ranges::for_each(mailFolders, sweep);
}

}  // namespace settings
