#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "desktop/Foundation/Entries.h"
#include "desktop/PhoneFolder.h"
#include "plist/Document.h"

namespace desktop {

/// A property-list file whose root is a dictionary.
struct PropertyListFile {
  Entries entries;
  plist::Form form = plist::Form::Binary;
};

/// There is something at the path, but not a dictionary that can be read; `what()` says why.
class UnreadableFile : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The dictionary at the phone's `path`; none when, and only when, there is no file. Throws
/// `UnreadableFile` for everything else.
std::optional<PropertyListFile> readPropertyList(const PhoneFolder& folder, std::string_view path);

/// Replaces the file, in its form (in binary where XML cannot carry a value exactly or gets too
/// large). Throws `std::system_error`: with `EFBIG`, before anything is touched, where
/// `readPropertyList` would refuse what was written.
void writePropertyList(const PhoneFolder& folder, std::string_view path,
                       const PropertyListFile& file);

}  // namespace desktop
