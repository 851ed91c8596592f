#pragma once

#include <filesystem>
#include <functional>
#include <set>
#include <string>

#include "desktop/Cephei/PreferencesService.h"
#include "desktop/CoreFoundation/NotifyCenter.h"
#include "desktop/Journal.h"
#include "desktop/PhoneFolder.h"

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
