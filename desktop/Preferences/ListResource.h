#pragma once

#include <string>

#include "platform/Foundation/NSArray.h"
#include "platform/Preferences/PSListController.h"

namespace desktop {

/// A list of rows kept as a property list: `title`, and `items` with one dictionary a row.
struct ListResource {
  std::string title;
  /// None when the resource is missing or unreadable.
  platform::NSArray specifiers;
};

/// The open bundle's resource `name` ("Root" for Root.plist), each row with `target` as its target.
ListResource readListResource(const std::string& name, platform::PSListController& target);

}  // namespace desktop
