#pragma once

#include <cassert>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "desktop/Cephei/PreferencesService.h"
#include "desktop/CoreFoundation/NotifyCenter.h"
#include "desktop/Identity.h"
#include "desktop/Journal.h"
#include "desktop/MainQueue.h"
#include "desktop/PhoneFolder.h"
#include "desktop/SpringBoard.h"
#include "platform/CoreGraphics/CGContext.h"
#include "platform/CoreGraphics/CGGeometry.h"

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
  static Phone& current() {
    assert(on_);
    return *on_;
  }

  /// The screen's size, in points.
  static constexpr platform::CGSize screenSize{390, 844};

  /// Tells the person at the desktop of something that the bundle keeps silent about, such as a
  /// change that was not stored. Goes to standard error, and to the page as its banner, unless
  /// replaced.
  std::function<void(const std::string& line)> report;

  /// What was reported last and has not been put away; empty when there is nothing.
  std::string banner;

  /// Reports that a change was not stored where it belongs, and counts it.
  void reportLoss(const std::string& line) {
    ++losses;
    report(line);
  }
  /// How many such changes there were so far.
  std::size_t losses = 0;

  /// Classes whose library is not installed on this phone.
  std::set<std::string> missingClasses;

  /// Pixels to a point.
  double screenScale = 3;

  /// What was begun to be drawn into, the current one last.
  std::vector<platform::CGContext> contexts;

  /// The folder of the bundle that is open, whose resources its controllers load.
  std::string bundle;

  /// Told of each mail that was sent, as it travels, when all else is done; may be empty.
  std::function<void(const std::string& message)> mailSent;

  /// Its file system.
  PhoneFolder folder;
  /// What it says of itself: as its files said when it was switched on, unless replaced.
  Identity identity = readIdentity(folder);
  /// What was asked of it.
  Journal journal;
  /// The Darwin notify centre.
  NotifyCenter notifications;
  PreferencesService preferences;
  /// What is to happen later.
  MainQueue mainQueue;
  /// What owns its screen. Nothing is open at first.
  SpringBoard springBoard{mainQueue};

 private:
  static inline Phone* on_ = nullptr;
};

}  // namespace desktop
