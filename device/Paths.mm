#include "device/Paths.h"

#include <string>
#include <string_view>

#include "device/Native.h"

/// The folder that a jailbreak without access to the root keeps everything below; "" where there is
/// none. The build says which.
#ifndef QUILLMERE_PREFIX
#define QUILLMERE_PREFIX ""
#endif

namespace device {

namespace {

/// What lies in `folder` lies in `moved` instead.
struct Place {
  std::string_view folder;
  std::string_view moved;
};

/// The first that fits counts. With an empty prefix that is the first one, and nothing moves.
constexpr Place places[] = {
    {QUILLMERE_PREFIX, QUILLMERE_PREFIX},
    // The system's own part is sealed and the same everywhere.
    {"/System", "/System"},
    // A link in the root, which below the prefix nobody makes.
    {"/User", QUILLMERE_PREFIX "/var/mobile"},
    {"", QUILLMERE_PREFIX},
};

bool lies(std::string_view path, std::string_view folder) {
  return !path.empty() && path.starts_with(folder) &&
         (path == folder || path[folder.size()] == '/');
}

std::string moved(const std::string& path) {
  for (const Place& place : places) {
    if (!lies(path, place.folder)) continue;
    return std::string(place.moved) + path.substr(place.folder.size());
  }
  return path;
}

}  // namespace

::NSString* resolved(const platform::NSString& path) {
  return path ? autoreleased(platform::NSString(std::string_view(moved(path.UTF8String())))) : nil;
}

::NSDictionary* environment() {
  if (std::string_view(QUILLMERE_PREFIX).empty()) return nil;
  ::NSDictionary* own = [[::NSProcessInfo processInfo] environment];
  ::NSMutableDictionary* extended = [::NSMutableDictionary dictionaryWithDictionary:own];
  [extended setObject:@QUILLMERE_PREFIX "/usr/bin:" QUILLMERE_PREFIX "/bin:/usr/bin:/bin"
               forKey:@"PATH"];
  return extended;
}

}  // namespace device
