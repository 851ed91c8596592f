#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

#include "desktop/Phone.h"
#include "settings/Pictures.h"
#include "settings/Screen.h"

namespace plist_tests {

/// A phone that a page of the browser looks at, for telling what it costs.
class OpenedPhone {
 public:
  /// Where the preferences file of the add-on is on the phone.
  static constexpr const char* preferences =
      "/var/mobile/Library/Preferences/com.orvalen.quillmere.plist";

  /// Opens the first page on a phone that is set up there already.
  explicit OpenedPhone(const std::filesystem::path& folder);

  /// Opens the list of animations.
  void openList();

  /// Makes a change to the list: enables a row that is not, or else moves the first one that is.
  void changeList();

  /// The screen as the page gets it.
  const settings::Tree& look();

  const settings::Screen& screen() const { return screen_; }
  settings::Pictures& pictures() { return pictures_; }

 private:
  void touch(const nlohmann::json& message);

  desktop::Phone phone_;
  const settings::Screen screen_{phone_.springBoard};
  settings::Pictures pictures_;
  settings::Viewport viewport_;
  settings::Tree shown_;
};

}  // namespace plist_tests
