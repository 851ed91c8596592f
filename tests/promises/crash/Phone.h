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

/// All that is in the phone, by its path there: what a file holds, where a link leads, "/" for a
/// folder.
using Contents = std::map<std::string, std::string>;
Contents contentsOf(const std::filesystem::path& phone);

/// Of that, all but the preferences file. What is kept beside it, and new contents that wait to
/// take a file's place, have no business on a phone that is left alone.
Contents besidesSettings(Contents contents);

}  // namespace crash_tests
