#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "plist/Value.h"
#include "tests/promises/crash/Change.h"

namespace crash_tests {

/// Makes the folder what stands before the change.
void prepare(const std::filesystem::path& phone, Before before);

/// Makes `copy` a phone of its own, with all that `phone` holds.
void copyPhone(const std::filesystem::path& phone, const std::filesystem::path& copy);

/// The settings: what the preferences file holds, once what is kept beside it is merged. No file
/// holds no keys. Throws plist::Unreadable when either is torn.
plist::Dictionary settingsOf(const std::filesystem::path& phone);

/// The files that new contents are written to before they take a file's place.
std::size_t countAsides(const std::filesystem::path& phone);

/// All files and links but those of the settings and of new contents, by their paths in the phone,
/// with their contents.
std::map<std::string, std::string> filesOf(const std::filesystem::path& phone);

}  // namespace crash_tests
