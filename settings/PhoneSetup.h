#pragma once

#include <filesystem>

#include "desktop/PhoneFolder.h"

namespace settings {

/// "quillmere/phone" in the user's data folder (XDG Base Directory: `$XDG_DATA_HOME`, else
/// "~/.local/share"). Throws `std::runtime_error` when neither that variable nor `$HOME` is set.
std::filesystem::path defaultPhoneFolder();

/// Makes sure that `folder` is a folder that can be written to; it is made when only its last
/// component is missing. Throws `std::runtime_error` with a message for the user.
void requireFolder(const std::filesystem::path& folder);

/// Whether `folder` is laid out like a phone's file system, or begun to be. Throws
/// `std::system_error` when that cannot be found out.
bool holdsPhone(const desktop::PhoneFolder& folder);

/// Lays the folder out like a phone's file system and installs the bundle in it, as a package
/// would: the bundle's own files are brought up to date, and nothing else is changed. An empty
/// folder also gets the sample files. Throws `std::system_error`, or `std::runtime_error` when
/// /User does not lead to /var/mobile.
void setUpPhone(const desktop::PhoneFolder& folder);

/// Deletes what interrupted writes left in all folders that anything is written into. Throws
/// `std::system_error`.
void sweepPhone(const desktop::PhoneFolder& folder);

}  // namespace settings
