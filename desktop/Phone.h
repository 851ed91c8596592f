#pragma once

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "desktop/Cephei/PreferencesService.h"
#include "desktop/CoreFoundation/NotifyCenter.h"
#include "desktop/Journal.h"
#include "desktop/PhoneFolder.h"
#include "platform/CoreGraphics/CGContext.h"

namespace desktop {

/// The stand-in phone: its file system and its services. One is switched on at a time, and all
/// bodies of the projection work on that one.
class Phone {
 public:
  /// Switches a phone on over the folder `host`. Throws `std::system_error` as `PhoneFolder` does.
  explicit Phone(const std::filesystem::path& host);
  Phone(const Phone&) = delete;
  Phone& operator=(const Phone&) = delete;
  ~Phone();

  /// The phone that is on.
  static Phone& current();

  /// Tells the person at the desktop of something that the bundle keeps silent about. Goes to
  /// standard error unless replaced.
  std::function<void(const std::string& line)> report;

  /// Classes whose library is not installed on this phone.
  std::set<std::string> missingClasses;

  /// Pixels to a point.
  double screenScale = 3;

  /// What was begun to be drawn into, the current one last.
  std::vector<platform::CGContext> contexts;

  /// The folder of the bundle that is open, whose resources its controllers load.
  std::string bundle;

  /// Its file system.
  PhoneFolder folder;
  /// What was asked of it.
  Journal journal;
  /// The Darwin notify centre.
  NotifyCenter notifications;
  PreferencesService preferences;
};

}  // namespace desktop
