#pragma once

#include <array>

#include "desktop/Body.h"
#include "platform/OrvalenPrefs/OrvalenWelcome.h"

namespace desktop {

/// The maker's welcome screen.
class WelcomeBody : public Body {
 public:
  struct Item {
    platform::NSString title;
    platform::NSString description;
  };

  std::string_view className() const override { return "OrvalenWelcome"; }

  /// The user has seen it: remembers that in the add-on's domain, through the preferences service.
  void rememberSeen() const;

  platform::NSString title;
  platform::NSString subtitle;
  std::array<Item, 3> items;
  platform::NSString buttonTitle;
  platform::NSString buttonCaption;
  platform::NSString packageId;
  platform::NSString bundlePath;
  platform::UIColor tint;
};

}  // namespace desktop
